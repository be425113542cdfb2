// The print of the open delivery in RTF: every field of its documents, or their texts alone.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// One whole print into dump/, in place of any earlier one. With `filtro` only the documents whose
// title was translated with a "]", once for each such translation. A delivery without documents
// gives a file without documents.
//
// What ends a run, and leaves a file that is not closed: the template is not there (53), a file
// that cannot be opened (75, 76) or written (57, 61), a row that a document refers to and that is
// not there (3021), Null where text is needed (94), a counter past 32767 (6).
void StampaRTF(StatoGlobale& stato, Dialoghi& dialoghi, bool completa, bool filtro);

// Asks for the filter, then prints the texts.
void ComandoStampaSoloTesti(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
