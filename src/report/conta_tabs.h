// How many documents of each abstract type an issue has.
#pragma once

#include <array>

#include "archive/database.h"

namespace torvi {

inline constexpr std::array<const char*, 6> kTAbs = {"400", "500", "600", "700", "800", "900"};

// Counts in the order of kTAbs. Past 32767, the sum too: error 6.
using ConteggiTAbs = std::array<qint16, kTAbs.size()>;
[[nodiscard]] qint16 Somma(const ConteggiTAbs& conteggi);

// The documents of a journal whose date ends with `anno`, of an issue only where `fascicolo` is not
// empty. A text with a double quote: error 3075.
[[nodiscard]] ConteggiTAbs ContaTAbs(const Database& archivio, const Campo& idRivista,
                                     const QString& fascicolo, const QString& anno);

}  // namespace torvi
