// What the sections of one RTF print share.
#pragma once

#include "export/coppie_classe.h"
#include "export/coppie_decodificate.h"
#include "export/descrizioni_1999.h"
#include "export/legami_in_ordine.h"
#include "export/nomi_responsabili.h"
#include "export/tabelle_di_codici.h"
#include "report/stampa_fascicolo.h"
#include "shell/stato_globale.h"

namespace torvi {

struct ContestoStampa {
  StatoGlobale& stato;
  bool completa = false;
  QString CodiciClasse = {};  // classification of the current document
  TabelleDiCodici codici{stato.DbArchivio};
  LegamiDocumento legami{stato.DbArchivio};
  NomiResponsabili nomi{stato.DbArchivio, QLatin1StringView(", ")};
  CoppieClasse coppieClasse{stato.DbArchivio, codici};
  CoppieDecodificate coppie = {};
  Descrizioni1999 descrizioni1999{stato.DbArchivio};
  LettoreFascicoliStampa fascicoli{stato.DbArchivio};
};

}  // namespace torvi
