// What the field writers of one export run share.
#pragma once

#include <QString>

#include "export/coppie_classe.h"
#include "export/coppie_decodificate.h"
#include "export/descrizioni_1999.h"
#include "export/file_testo.h"
#include "export/legami_in_ordine.h"
#include "export/nomi_responsabili.h"
#include "export/record.h"
#include "export/riferimento_fascicolo.h"
#include "export/tabelle_di_codici.h"
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
  QString CodiciClasse = {};  // classification of the current document
  TabelleDiCodici codici{stato.DbArchivio};
  LegamiDocumento legami{stato.DbArchivio};
  NomiResponsabili nomi{stato.DbArchivio, QLatin1StringView("+")};
  CoppieClasse coppieClasse{stato.DbArchivio, codici};
  Descrizioni1999 descrizioni1999{stato.DbArchivio};
  CoppieDecodificate coppie = {};
  LettoreRiferimenti riferimenti{stato.DbArchivio};
};

}  // namespace torvi
