// Names that a source bears, as keys of the small tables, which grow while sources are saved.
#pragma once

#include <optional>

#include "fonti/tavole_fonte.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The key of a name. A name that the table lacks is offered to the operator: Yes adds its row, with
// the extended form where the table has one; No gives nothing. In a fixed table it is error 3021.
[[nodiscard]] std::optional<qint64> ChiaveNome(StatoGlobale& stato, Dialoghi& dialoghi,
                                               const TavolaNomi& tavola, const QString& nome);

}  // namespace torvi
