// Citations of Italian law: from the controls of a tab to the text and the fields of a row, side by
// side. Nothing is validated but the presence of what a kind of act needs.
#pragma once

#include "fonti/composizione.h"

namespace torvi {

// The Constitution, the codes and the uniform banking rules. A source without article begins with a
// blank.
EsitoFonte ComponiCodificazione(const ControlliFonte& controlli, RigaFonte& riga);
// Acts. Tolta after a message, or where the operator does not confirm what is missing. A kind that
// there is not: error 5.
EsitoFonte ComponiNormativa(const ControlliFonte& controlli, RigaFonte& riga, Dialoghi& dialoghi);
// Judgments. Tolta after a message. A kind that there is not: error 5.
EsitoFonte ComponiGiurisprudenza(const ControlliFonte& controlli, RigaFonte& riga,
                                 Dialoghi& dialoghi);
// Appends date and number.
void AggiungiEstremi(QString& testo, RigaFonte& riga, const ControlliFonte& controlli);

}  // namespace torvi
