// The number under which a document is saved: a number, and of the right document.
#pragma once

#include "document/documento.h"

namespace torvi {

// True where the save may go on under the number in txtID. Asks before the document goes over
// another one, or gets another number than the one shown, because the operator changed it or
// somebody else has given it meanwhile; txtID may be a new one afterwards. No number: error 13. To
// be saved in place, and not in the archive any more: error 3021.
[[nodiscard]] bool ConfermaNumero(Documento& documento);

}  // namespace torvi
