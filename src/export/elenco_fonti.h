// Field 10: the sources of a document as citations, and the checks on them.
#pragma once

#include "export/contesto.h"
#include "export/fonte_letta.h"

namespace torvi {

// `fonti` are the sources of the document. Appends the field if there are any. A source that fails
// a check goes to the source error file and stays in the list; a document without sources, where
// they are required, goes to the generic one. A later source without `numero` (Null): error 94; see
// also VerificaCatalogo.
void ScriviElencoFonti(ContestoEsportazione& contesto, std::span<const FonteLetta> fonti,
                       const QString& idRecord);

}  // namespace torvi
