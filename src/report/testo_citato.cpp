#include "report/testo_citato.h"

#include "archive/errore.h"

namespace torvi {

QString TestoCitato(const QString& testo, QChar delimitatore) {
  QString citato;
  for (qsizetype i = 0; i < testo.size(); ++i) {
    if (testo[i] == delimitatore && ++i == testo.size()) break;
    citato += testo[i];
  }
  const bool rotto = testo.count(delimitatore) != 2 * citato.count(delimitatore);
  if (rotto) throw ErroreEsecuzione(Errore::SintassiErrata, testo);
  return citato;
}

}  // namespace torvi
