// Where a print or an extraction of one delivery writes, and how it ends.
#pragma once

#include <QString>

#include "export/file_testo.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// dump/<nome>, written afresh; in ModoBatch the common `FileBatch`, behind what is there. Errors
// are those of FileTesto and of RichiediUscita.
[[nodiscard]] FileTesto ApriUscita(const StatoGlobale& stato, const QString& nome);
// In ModoBatch an empty line parts this delivery from the next.
void PartiConsegna(const StatoGlobale& stato, FileTesto& file);
// Closes a file that is whole, takes the hourglass away, offers the file and shows `messaggio`.
void Concludi(FileTesto& file, Clessidra& clessidra, Dialoghi& dialoghi, const QString& messaggio);

}  // namespace torvi
