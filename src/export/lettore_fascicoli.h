// The journal references that the documents of a run share, in the shape that an output gives them.
#pragma once

#include <optional>

#include "archive/database.h"

namespace torvi {

// The joined rows of reference and journal; no row where either is missing.
[[nodiscard]] Recordset ApriRiferimento(const Database& archivio, qint16 idRifBibl);

// The documents of one issue come one behind the other, so what `componi` made of the last
// reference is kept. It takes the row and the production year.
template <typename Fascicolo, Fascicolo (*componi)(const Recordset&, const QString&)>
class LettoreFascicoli {
 public:
  explicit LettoreFascicoli(const Database& archivio) : archivio_(archivio) {}

  // No such reference, or no such journal: error 3021. The result stays good until the next call.
  [[nodiscard]] const Fascicolo& Leggi(qint16 idRifBibl, const QString& annoProduzione) {
    if (!ultimo_ || idRifBibl_ != idRifBibl || annoProduzione_ != annoProduzione) {
      ultimo_.reset();
      ultimo_ = componi(ApriRiferimento(archivio_, idRifBibl), annoProduzione);
      idRifBibl_ = idRifBibl;
      annoProduzione_ = annoProduzione;
    }
    return *ultimo_;
  }

 private:
  Database archivio_;
  qint16 idRifBibl_ = 0;
  QString annoProduzione_;
  std::optional<Fascicolo> ultimo_;
};

}  // namespace torvi
