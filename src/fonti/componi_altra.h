// Citations of all law that is not Italian: from the controls of a tab to the text and the fields
// of a row. Mancata after a message: what was read before it stays in the row.
#pragma once

#include "archive/database.h"
#include "fonti/composizione.h"

namespace torvi {

// `tp` NIT, NIA or GEI. The treaty of a NIT is the one whose number stands before ") " in
// txtLibero: error 5 where there is none, 13 where it is no number, 3021 where no row has it.
EsitoFonte ComponiInternazionale(const ControlliFonte& controlli, const QString& tp,
                                 const Database& archivio, RigaFonte& riga, Dialoghi& dialoghi);
// `tp` "NIC T", "NIC D", "NIC C" or GEC. The numbering of EU acts changed twice, so that the year
// decides the shape of a citation.
EsitoFonte ComponiComunitario(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                              Dialoghi& dialoghi);
// `tp` NS or GS.
EsitoFonte ComponiStraniero(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                            Dialoghi& dialoghi);
// `tp` FCC, FCA or FCG.
EsitoFonte ComponiCanonico(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                           Dialoghi& dialoghi);
// `voce` bears the code between "(*" and "*)": error 5 where it does not.
EsitoFonte ComponiStorica(const ControlliFonte& controlli, const QString& voce, RigaFonte& riga,
                          Dialoghi& dialoghi);

}  // namespace torvi
