// The sections of an RTF print that hold people, running text and sources. A section without
// anything to say is the empty string.
#pragma once

#include "export/testi.h"
#include "report/contesto_stampa.h"

namespace torvi {

// Names joined by "; ". The first row alone decides whether they are authors or curators. A person
// without `SecondoElemento` (Null): error 94.
[[nodiscard]] QString RigaResponsabili(ContestoStampa& contesto, qint64 idDoc);

// The text of a `Tipo`, backslashes doubled and nothing else touched, under the label of a tag. A
// row without content (Null): error 94.
[[nodiscard]] QString RigaTesto(const TestiDocumento& testi, QLatin1StringView tipo,
                                QLatin1StringView tag);

// The sources as they are stored, one a line; of some kinds the code stands behind, between "*".
[[nodiscard]] QString RigaFonti(ContestoStampa& contesto, qint64 idDoc);

}  // namespace torvi
