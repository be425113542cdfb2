// The rule of the pairs: whether a systematic code goes with a descriptor. An invalid pair is kept
// and marked, never refused.
#pragma once

#include "archive/database.h"

namespace torvi {

// 0 where TabLegameDS allows the pair of codes, 1 otherwise. Neither code is escaped: an
// apostrophe in one is error 3075.
[[nodiscard]] qint16 CheckCodice(const Database& archivio, const QString& sistematico,
                                 const QString& descrittore);
// 2 where TabLegameDSA allows the term, its asterisk included, with the code, 3 otherwise.
[[nodiscard]] qint16 CheckTermine(const Database& archivio, const QString& sistematico,
                                  const QString& termine);

}  // namespace torvi
