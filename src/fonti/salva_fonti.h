// The sources of a document on their way to the archive, inside the save of the document.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Finds or makes the row of each source not marked for deletion, asks for the long form of names
// that are new to the small tables, and rewrites the links of the document. Failures are thrown and
// leave the earlier rows written.
void SalvaFonti(StatoGlobale& stato, Dialoghi& dialoghi, qint64 idDocumento, bool salvaComeNuovo);

}  // namespace torvi
