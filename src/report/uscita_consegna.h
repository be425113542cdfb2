// Where a print or an extraction of one delivery writes.
#pragma once

#include <QString>

#include "export/file_testo.h"
#include "shell/stato_globale.h"

namespace torvi {

// dump/<nome>, written afresh; in ModoBatch the common `FileBatch`, behind what is there. Errors
// are those of FileTesto.
[[nodiscard]] FileTesto ApriUscita(const StatoGlobale& stato, const QString& nome);
// In ModoBatch an empty line parts this delivery from the next.
void ChiudiUscita(const StatoGlobale& stato, FileTesto& file);

}  // namespace torvi
