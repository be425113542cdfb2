#include "shell/avvio.h"

#include "archive/file_nuovo.h"
#include "shell/percorsi.h"

namespace torvi {

void PreparaStato(StatoGlobale& stato, const QString& cartellaApplicazione) {
  stato.CartellaApplicazione = cartellaApplicazione;
  stato.PasswordRiservata = QStringLiteral("$kavo$");
  stato.ListaRicerca.clear();
  stato.ModoBatch = false;
  stato.NotaDocCancellata = false;
}

void TogliLasciati(const QString& cartellaApplicazione) {
  TogliFileLasciati(TrovaPercorso(cartellaApplicazione + QLatin1String("/mdb")));
}

}  // namespace torvi
