// The prospetto: a table of the open delivery by journal and issue, with how many documents each
// has of each abstract type. Its two forms differ by more than their markup.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Both write into dump/, in place of any earlier file, and mark the delivery. A text with a double
// quote: error 3075; a count past 32767: error 6; a file that cannot be opened (75, 76) or written
// (57, 61), the template not there (53): the run-time error ends the print.

// A row for each issue and full date. A count is 0 unless the date is a bare year.
void ProspettoRTF(StatoGlobale& stato, Dialoghi& dialoghi);
// A row for each issue and year, totals, and two lists of documents by their texts.
void ProspettoHTML(StatoGlobale& stato, Dialoghi& dialoghi);

// Asks which form, then prints it.
void ComandoStampaProspetto(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
