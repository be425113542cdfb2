// The journal reference of a document as an RTF print shows it.
#pragma once

#include "export/riferimento.h"
#include "report/contesto_stampa.h"

namespace torvi {

// The two coded lines, where the print is complete, and the reading form. `idRecord` begins with
// the production year. Sets `Dopo2000` unless the reference has no date. No such reference or no
// such `Bib`: error 3021.
[[nodiscard]] QString RigaRiferimenti(ContestoStampa& contesto, const QString& idRecord,
                                      const DatiDocumento& documento);

}  // namespace torvi
