// The journal reference of a document: fields 5 and 14 (coded), field 21 (reading citation), and
// the checks on them. Also decides which classification scheme the document follows.
#pragma once

#include "export/testi.h"

namespace torvi {

// What TabDocumento holds beside its key, as text.
struct DatiDocumento {
  qint16 IDRifBibl = 0;
  QString pagine = {};
  QString td = {};
  QString TAbs = {};
  QString Bib = {};
  QString LIN = {};
  QString lo = {};
  QString lr = {};
  QString la = {};
};

// Appends the three fields, writes what it finds wrong to the generic error file, and sets
// `Dopo2000` unless the reference has no date. No such reference or no such `Bib`: error 3021.
void ScriviRiferimento(ContestoEsportazione& contesto, const TestiDocumento& testi, qint64 idDoc,
                       const QString& idRecord, const DatiDocumento& documento);

}  // namespace torvi
