// The classification of a document as an RTF print shows it: codes, then what they stand for.
#pragma once

#include "report/contesto_stampa.h"

namespace torvi {

// Fills CodiciClasse. The paragraph of the codes, empty where there is none and in the scheme
// before 2000. A descriptor without row: error 3021.
[[nodiscard]] QString RigaClassi(ContestoStampa& contesto, qint64 idDoc);

// What CodiciClasse, which is not empty, stands for. A code without row: error 3021.
[[nodiscard]] QString RigaClassiTesto(ContestoStampa& contesto);

// The characters of a code of the scheme before 2000, a full stop between them: "A12" is "A.1.2".
[[nodiscard]] QString CodicePuntato(const QString& codice);

}  // namespace torvi
