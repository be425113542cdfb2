// What a program sets and clears away when it starts.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

// The folder of the executable, the constant of the restricted login, and the cleared variables.
void PreparaStato(StatoGlobale& stato, const QString& cartellaApplicazione);
// What killed programs left half made in mdb/ goes away.
void TogliLasciati(const QString& cartellaApplicazione);

}  // namespace torvi
