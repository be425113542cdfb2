// The consistenza: how many documents of the open delivery fall in each journal issue.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// One line an issue, by journal, date and number, and the range of the delivery's numbers, in
// "dump/consistenza." and the delivery's name. Its first message compares the documents counted
// with those there are.
//
// An issue or a date with an apostrophe: error 3075. A count past 32767: error 6. A file that
// cannot be opened (75, 76) or written (57, 61) ends the print.
void StampaConsistenza(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
