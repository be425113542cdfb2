// What citations of international and EU law share.
#pragma once

#include "fonti/composizione.h"

namespace torvi {

// Day, month and year, all required. False after the message of the first that is missing.
[[nodiscard]] bool AggiungiDataRichiesta(QString& testo, RigaFonte& riga,
                                         const ControlliFonte& controlli, Dialoghi& dialoghi);
// A judgment: its kind, the court, the section, the date, the free text. Here an order hides a
// decree.
[[nodiscard]] bool ComponiDecisione(QString& testo, RigaFonte& riga,
                                    const ControlliFonte& controlli, Dialoghi& dialoghi);

}  // namespace torvi
