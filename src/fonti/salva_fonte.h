// One source from an entry form to the rows of the document: what "Salva" does on either form, and
// what `torvi componi` does for scripts.
#pragma once

#include "fonti/composizione.h"
#include "shell/stato_globale.h"

namespace torvi {

// Tab 4, 1, 2 or 3 of internal law. A row that its composer gives up is taken away again. More rows
// than 32767: error 6.
EsitoFonte SalvaFonteInterna(StatoGlobale& stato, Dialoghi& dialoghi,
                             const ControlliFonte& controlli);

// Tab 0 to 4 of other law. A row that its composer does not complete stays, with the code "0" and
// without a text.
EsitoFonte SalvaFonteAltra(StatoGlobale& stato, Dialoghi& dialoghi,
                           const ControlliFonte& controlli);

// The lines of lstFonte after the form of other law was left. For a row whose line would be empty
// the last of all rows is cut.
[[nodiscard]] QStringList RigheDopoAltra(StatoGlobale& stato);

}  // namespace torvi
