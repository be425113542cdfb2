// The row of an author or curator that frmResponsabilita adds or changes. The list of the document
// form is rebuilt by the caller, with RigheLista.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

// The controls of frmResponsabilita.
struct CampiResponsabilita {
  QString txtElementoPr;
  QString txtElementoSec;
  bool optAutore = true;
  bool operator==(const CampiResponsabilita&) const = default;
};

// What the form shows for the row. Past the rows: error 9.
[[nodiscard]] CampiResponsabilita CampiDellaRiga(const StatoGlobale& stato,
                                                 qint16 indiceResponsabilita);
// "Esci e salva": a new row where the index is negative (one too many for 16 bits: error 6),
// otherwise the row at that place (past the rows: error 9), which keeps its key and its marks.
void EsciResponsabilita(StatoGlobale& stato, qint16 indiceResponsabilita,
                        const CampiResponsabilita& campi);

}  // namespace torvi
