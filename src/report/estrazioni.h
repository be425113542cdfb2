// What the abstracters left for the editors at the centre: notes to documents, and values added to
// the code tables.
#pragma once

#include <QString>

#include "export/file_testo.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The compiler's note of each document that has one, under the document's delivery number, in
// "dump/note.<consegna>". Past the 16-bit counter: error 6.
void EstraiNote(StatoGlobale& stato, Dialoghi& dialoghi);
// New values of six code tables with the documents that use them, in "dump/nuovi.<consegna>".
void EstraiNuovi(StatoGlobale& stato, Dialoghi& dialoghi);
// Both append to `FileBatch` in ModoBatch, under the delivery's name.

// A line for each row of a statement with the columns Nuovo and IDDoc, or one that says that there
// is none. A statement that fails, as on a table of an older form, leaves a line that says so.
void ElencaNuovi(const Database& archivio, const QString& tabella, const QString& istruzione,
                 FileTesto& file);

}  // namespace torvi
