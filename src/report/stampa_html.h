// Two prints in HTML to check the sources of a delivery against the public databases: each source
// with a link into the service.
#pragma once

#include <QString>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// EU sources, in "dump/stampaHTML <consegna>.htm". Marks the delivery as printed, also where there
// is nothing to print and in a batch.
void StampaHTMLCelex(StatoGlobale& stato, Dialoghi& dialoghi);
// Judgments of the European Court of Human Rights, in "dump/stampaHTML_GEI <consegna>.htm".
void StampaHTMLHudoc(StatoGlobale& stato, Dialoghi& dialoghi);
// Both append to `FileBatch` in ModoBatch. A delivery without such sources leaves the file empty. A
// file that cannot be written, Null where text is needed (94): the run-time error ends the print.

// What the service is asked for: the first party named behind the first "(" of the free text, up to
// the blank before "c.", its Italian words in English. Without " c. " it is empty.
[[nodiscard]] QString Parti(const QString& altro);

}  // namespace torvi
