// The journal references that the documents of a run share, in the shape that an output gives them.
#pragma once

#include "export/ricordati.h"

namespace torvi {

// The joined rows of reference and journal. The documents of one issue stand near each other, so
// few references are kept.
[[nodiscard]] RigheCondivise RigheRiferimenti();

// `componi` takes the row and the production year.
template <typename Fascicolo, Fascicolo (*componi)(const Recordset&, const QString&)>
class LettoreFascicoli {
 public:
  explicit LettoreFascicoli(const Database& archivio)
      : noti_(archivio, RigheRiferimenti(),
              [this](const Recordset& riga) { return componi(riga, annoProduzione_); }) {}

  // No such reference, or no such journal: error 3021. The result stays good until the next call.
  [[nodiscard]] const Fascicolo& Leggi(qint16 idRifBibl, const QString& annoProduzione) {
    NellAnno(annoProduzione);
    const Fascicolo* fascicolo = noti_.Cerca(static_cast<qint64>(idRifBibl));
    if (fascicolo == nullptr) throw ErroreEsecuzione(Errore::NessunRecordCorrente);
    return *fascicolo;
  }
  void LeggiTutti(const QString& annoProduzione) {
    NellAnno(annoProduzione);
    noti_.LeggiTutti();
  }

 private:
  void NellAnno(const QString& annoProduzione) {
    if (annoProduzione_ == annoProduzione) return;
    noti_.Dimentica();
    annoProduzione_ = annoProduzione;
  }

  QString annoProduzione_;
  Ricordati<Fascicolo> noti_;
};

}  // namespace torvi
