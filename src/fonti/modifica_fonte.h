// The correction of a source that stands on the document's list. Nothing is composed: the text and
// the fields are kept in step by hand.
#pragma once

#include "shell/righe.h"

namespace torvi {

// The citation with its code between asterisks, as the list shows it.
[[nodiscard]] QString TestoDaModificare(const RigaFonte& riga);

// Takes over what was written, the text up to its first asterisk. Key and marks of the row stay.
void ModificaFonte(RigaFonte& riga, RigaFonte scritta);

}  // namespace torvi
