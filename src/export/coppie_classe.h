// The pairs of the scheme 2000 that the documents of a run have, by their keys.
#pragma once

#include "export/ricordati.h"
#include "export/tabelle_di_codici.h"

namespace torvi {

// What one row of the scheme 2000 gives: its codes, and the message that its state raises.
struct CoppiaClasse {
  QString codici;     // the systematic code and, behind ";", the descriptor
  QString messaggio;  // empty: none
};

class CoppieClasse {
 public:
  CoppieClasse(const Database& archivio, TabelleDiCodici& codici);

  // Nothing where no row has that key; good until the next search. A descriptor without row: error
  // 3021.
  [[nodiscard]] const CoppiaClasse* Cerca(const Campo& idClasse) { return note_.Cerca(idClasse); }
  void LeggiTutte() { note_.LeggiTutti(); }

 private:
  Ricordati<CoppiaClasse> note_;
};

}  // namespace torvi
