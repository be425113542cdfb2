// What the field writers of one export run share.
#pragma once

#include <QString>

#include "export/coppie_decodificate.h"
#include "export/file_testo.h"
#include "export/legami_in_ordine.h"
#include "export/record.h"
#include "export/ricordati.h"
#include "export/riferimento_fascicolo.h"
#include "export/tabelle_di_codici.h"
#include "shell/stato_globale.h"

namespace torvi {

class CatalogoNorme;

// What one row of the scheme 2000 gives: its codes, and the message that its state raises.
struct CoppiaClasse {
  QString codici;
  QString messaggio;  // empty: none
};

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
  Ricordati<QString> nomi = {};                  // of people, as a record has them
  Ricordati<CoppiaClasse> coppieClasse = {};     // pairs of the scheme 2000
  QHash<QString, QString> descrizioni1999 = {};  // codes of the scheme before 2000
  CoppieDecodificate coppie = {};
  LettoreRiferimenti riferimenti = {};
};

}  // namespace torvi
