// Copies of an archive by the engine's own means: what is committed and nothing else, also while
// another program has it open, or where a killed one left its journal.
#pragma once

#include "archive/file_nuovo.h"

namespace torvi {

// The archive at `origine` as the start of a new file. No such file: error 53; no database: 3343;
// in use: 3045; a full disk: 61.
void CopiaArchivio(const QString& origine, const FileNuovo& nuovo);
// What was written there is an archive without damage, to its last page. Otherwise error 3343.
void RichiediIntegro(const QString& percorso);
// How many characters a column takes, as its table declares them, or as many as any text column of
// a genuine archive.
[[nodiscard]] int LarghezzaColonna(const QString& archivio, const char* tabella,
                                   const char* colonna);

}  // namespace torvi
