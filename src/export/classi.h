// The classification of a document: read and checked into one text of codes, then decoded. Which
// scheme applies follows from `Dopo2000`.
#pragma once

#include "export/contesto.h"

namespace torvi {

// The codes of the document, one or more joined by "\"; a pair of the scheme 2000 is the systematic
// code of five characters and, behind ";", a descriptor. Pairs that are not plainly valid go to the
// classification error file; a document without classification goes to the generic one, and gives
// the empty text. A descriptor without row: error 3021.
[[nodiscard]] QString LeggiClassi(ContestoEsportazione& contesto, qint64 idDoc,
                                  const QString& idRecord);

// Both decode CodiciClasse of the context into one field: 24 and 25 in the scheme 2000, 12 before.
// A systematic code or an older code without row: error 3021.
void ScriviClassiStorico(ContestoEsportazione& contesto);
void ScriviClassiCassazione(ContestoEsportazione& contesto);

// A full stop behind every character but the first: "A12" is "A1.2.".
[[nodiscard]] QString PuntaCodice(const QString& codice);

}  // namespace torvi
