// The journal reference that a document points to, with its journal.
#pragma once

#include <optional>

#include "archive/database.h"

namespace torvi {

struct RigaRiferimento {
  qint16 IDRifBibl = 0;
  Campo CPER;
  Campo TitoloRivista;
  Campo IDPeriodicita;
  Campo Fascicolo;
  Campo Annata;
  Campo Volume;
  Campo Parte;
  Campo Serie;
  Campo Supplemento;
  Campo Sezione;
  Campo Data;
};

// The documents of one issue come one behind the other, so the last reference is kept.
class LettoreRiferimenti {
 public:
  // No such reference, or no such journal: error 3021.
  [[nodiscard]] const RigaRiferimento& Leggi(const Database& archivio, qint16 idRifBibl);

 private:
  std::optional<RigaRiferimento> ultima_;
};

}  // namespace torvi
