// What the main form sets when it is loaded.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

// The folder of the executable, the constant of the restricted login, and the cleared variables.
void PreparaStato(StatoGlobale& stato, const QString& cartellaApplicazione);

}  // namespace torvi
