// The steps of a document's save, in their order. Each throws what fails and leaves what the steps
// before it wrote.
#pragma once

#include "document/documento.h"

namespace torvi {

// Day, month and year with slashes: "00" for an unknown day or month, nothing for the year.
[[nodiscard]] QString DataPubblicazione(const CampiDocumento& campi);
// The reference's row, found by the equality of all its fields or made. 0 for an unknown journal.
[[nodiscard]] qint16 SalvaRiferimento(const Documento& documento);
// A new row of TabDocumento, or the changes of the old: what was cleared keeps its old value.
void SalvaRigaDocumento(Documento& documento, qint16 idRifBibl);
void SalvaResponsabilita(Documento& documento);
void SalvaTesti(Documento& documento);
// The links of the scheme that the year selects; those of the other scheme stay.
void SalvaClassi(Documento& documento);

}  // namespace torvi
