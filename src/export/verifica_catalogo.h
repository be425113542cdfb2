// Looks a cited Italian norm up in the norm catalogue.
#pragma once

#include "export/contesto.h"
#include "export/fonte_letta.h"

namespace torvi {

enum class EsitoCatalogo {
  Trovato = 0,
  NonCoperto = 1,     // a kind of act that the catalogue does not hold
  NonConfermato = 2,  // no such act, or a date that is not complete
};

// `fonte` is a row of TabFonte. A `fonte` without its row in TabFonteInterna: error 3021; a
// catalogue that is needed and not there: error 3024.
[[nodiscard]] EsitoCatalogo VerificaCatalogo(ContestoEsportazione& contesto,
                                             const FonteLetta& fonte);

}  // namespace torvi
