// What the field writers of one export run share.
#pragma once

#include <QString>

#include "export/file_testo.h"
#include "export/fonti_in_anticipo.h"
#include "export/legami_in_ordine.h"
#include "export/record.h"
#include "export/tabelle_condivise.h"
#include "shell/stato_globale.h"

namespace torvi {

class CatalogoNorme;

struct ContestoEsportazione {
  StatoGlobale& stato;
  Record& record;
  FileTesto& fileErrori;
  FileTesto& fileErrClasse;
  FileTesto& fileErrFonte;
  CatalogoNorme& catalogo;
  TabelleCondivise& condivise;
  FontiInAnticipo& fonti;
  QString CodiciClasse = {};  // classification of the current document
  LegamiDocumento legami{stato.DbArchivio};
};

}  // namespace torvi
