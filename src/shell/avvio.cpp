#include "shell/avvio.h"

namespace torvi {

void PreparaStato(StatoGlobale& stato, const QString& cartellaApplicazione) {
  stato.CartellaApplicazione = cartellaApplicazione;
  stato.PasswordRiservata = QStringLiteral("$kavo$");
  stato.ListaRicerca.clear();
  stato.ModoBatch = false;
  stato.NotaDocCancellata = false;
}

}  // namespace torvi
