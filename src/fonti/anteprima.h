// The citation as it would be composed now, while the operator still fills the fields. Nothing is
// stored and nothing is asked.
#pragma once

#include "fonti/salva_fonte.h"

namespace torvi {

struct Anteprima {
  QString testo;     // empty where it cannot be composed yet
  QString mancanza;  // what would be told or asked first; empty where nothing would
};

using SalvaFonte = EsitoFonte (*)(StatoGlobale&, Dialoghi&, const ControlliFonte&);

// By the save of either form. What would fail gives an empty preview.
[[nodiscard]] Anteprima ComponiAnteprima(const StatoGlobale& stato, SalvaFonte salva,
                                         const ControlliFonte& controlli);

}  // namespace torvi
