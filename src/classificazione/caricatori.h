// The restricted commands that fill the classification tables of the master archive from the
// scheme's own sources, and the reduced catalogue of norms from the full one.
//
// Each asks for the login first. No target is emptied, no closing message is given. What stops a
// command leaves the rows done so far in the target: a source that is not there (3024, the text
// file 53), a key that the target has already (3022), Null or a text where a number is needed. The
// description names the row.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// From "classificazione.mdb" in the folder that the settings name; a genuine Jet file is read as it
// is.
void CaricaTabSistematici(StatoGlobale& stato, Dialoghi& dialoghi);
void CaricaTabDescrittori(StatoGlobale& stato, Dialoghi& dialoghi);
void CaricaTabLegami(StatoGlobale& stato, Dialoghi& dialoghi);
// From "DescrittoriA2000.txt" beside it: five characters of the systematic code, one that is
// skipped, and the term. A line of fewer than six characters: error 5.
void CaricaTabDescrittoriAsteriscati(StatoGlobale& stato, Dialoghi& dialoghi);
// mdb/"catalogo norme.mdb": the acts whose keys the table `PD` holds. A key that the catalogue
// lacks: error 3021. Leaves PathArchivio on the catalogue, and the catalogue open.
void CaricaTabNorme(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
