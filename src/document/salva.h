// The one routine that writes a document to the archive, as one unit on disk.
#pragma once

#include "document/documento.h"

namespace torvi {

// Writes the document on screen: a new row where SalvaComeNuovo is set (a completed save clears
// it), otherwise the row of txtID. False when the journal code is missing or the document was not
// loaded whole, after a message, and when the operator does not want it written over another one or
// over what somebody else changed meanwhile.
// Shared rows (reference, persons, classification pairs, sources) are found or made; links are
// rewritten. A failure is thrown and leaves the steps before it written.
bool SalvaDocumento(Documento& documento);

}  // namespace torvi
