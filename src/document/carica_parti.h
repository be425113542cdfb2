// The steps of a document's load, in their order.
#pragma once

#include "document/documento.h"

namespace torvi {

// The number in txtID; 0 where there is none.
[[nodiscard]] qint64 NumeroDocumento(const Documento& documento);

// People, with the lines of their list. A link whose person is gone: error 3021.
void CaricaResponsabilita(Documento& documento);
// Codes, pages, journal reference and date. A value that has no item in its combo: error 380.
void CaricaRiferimenti(Documento& documento);
// Classification, by the scheme that the year in txtAA selects.
void CaricaClassi(Documento& documento);
// Texts and icons. A link whose text is gone is left out, and its name kept.
void CaricaTesti(Documento& documento);
// Empties the seven texts that have no control.
void SvuotaTesti(Documento& documento);

}  // namespace torvi
