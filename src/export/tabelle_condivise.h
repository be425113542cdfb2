// What the documents of one delivery share, read from its archive as they ask for it.
#pragma once

#include "export/coppie_classe.h"
#include "export/coppie_decodificate.h"
#include "export/descrizioni_1999.h"
#include "export/nomi_responsabili.h"
#include "export/riferimento_fascicolo.h"
#include "export/tabelle_di_codici.h"

namespace torvi {

struct TabelleCondivise {
  explicit TabelleCondivise(const Database& archivio)
      : codici(archivio),
        nomi(archivio, QLatin1StringView("+")),
        coppieClasse(archivio, codici),
        descrizioni1999(archivio),
        riferimenti(archivio) {}

  // Reads ahead what the first documents would ask for. The production year is that of the
  // delivery.
  void LeggiTutte(const QString& annoProduzione) {
    codici.LeggiTutte();
    nomi.LeggiTutti();
    coppieClasse.LeggiTutte();
    riferimenti.LeggiTutti(annoProduzione);
  }

  TabelleDiCodici codici;
  NomiResponsabili nomi;
  CoppieClasse coppieClasse;
  Descrizioni1999 descrizioni1999;
  CoppieDecodificate coppie = {};
  LettoreRiferimenti riferimenti;
};

}  // namespace torvi
