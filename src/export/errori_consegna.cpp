#include "export/errori_consegna.h"

#include "archive/errore.h"
#include "export/file_testo.h"
#include "export/registro_uscite.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

const QString kFineRiga = QStringLiteral("\r\n");

QString LeggiTutto(const QString& percorso) {
  FileTesto file(percorso, Apertura::Lettura);
  QString testo;
  while (const auto riga = file.LineInput()) testo += *riga + kFineRiga;
  return testo;
}

void Mostra(StatoGlobale& stato, Dialoghi& dialoghi, const VoceErrori& voce) {
  LeggiInfoConsegna(stato);
  // The marker stands for the use of the function, whether there is a file or not.
  RegistraUsoFunzione(stato, voce.codice);
  RipristinaUscite(CartellaUscite(stato.CartellaApplicazione));
  const QString testo =
      LeggiTutto(FileUscita(stato.CartellaApplicazione, voce.file + stato.SiglaConsegna));
  if (testo == kFineRiga) {
    dialoghi.Messaggio(voce.nessuno);
    return;
  }
  stato.TestoErrori = voce.intestazione + kFineRiga + kFineRiga + testo;
  dialoghi.MostraErrori(stato.TestoErrori);
}

}  // namespace

QString VisualizzaErrori(StatoGlobale& stato, Dialoghi& dialoghi, const VoceErrori& voce) {
  try {
    Mostra(stato, dialoghi, voce);
  } catch (const ErroreEsecuzione& errore) {
    if (!errore.E(Errore::FileNonTrovato)) return errore.Descrizione();
    dialoghi.Messaggio(QStringLiteral(
        "Prima di usare questa funzione occorre utilizzare una delle tre sottovoci del "
        "sottomenù Formato ASCII di Esporta"));
  }
  return {};
}

}  // namespace torvi
