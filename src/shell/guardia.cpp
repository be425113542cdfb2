#include "shell/guardia.h"

namespace torvi {

QString TestoErrore(const ErroreEsecuzione& errore) {
  return QStringLiteral("Errore di run-time '%1': %2")
      .arg(QString::number(errore.Numero()), errore.Descrizione());
}

bool Esegui(Dialoghi& dialoghi, const std::function<void()>& comando) {
  try {
    comando();
    return true;
  } catch (const ErroreEsecuzione& errore) {
    dialoghi.Messaggio(TestoErrore(errore));
  } catch (const std::exception& guasto) {
    dialoghi.Messaggio(
        TestoErrore(ErroreEsecuzione(Errore::ErroreInterno, QString::fromUtf8(guasto.what()))));
  }
  return false;
}

}  // namespace torvi
