#include "archive/errore.h"
#include "fonti/componi_altra.h"

namespace torvi {
namespace {

QString Codice(const QString& voce) {
  const qsizetype inizio = voce.indexOf(QLatin1String("(*"));
  const qsizetype fine = voce.indexOf(QLatin1String("*)"));
  if (inizio < 0 || fine < inizio + 2) throw ErroreEsecuzione(Errore::ChiamataNonValida, voce);
  return voce.mid(inizio + 2, fine - inizio - 2);
}

}  // namespace

EsitoFonte ComponiStorica(const ControlliFonte& controlli, const QString& voce, RigaFonte& riga,
                          Dialoghi& dialoghi) {
  if (controlli.txtLibero.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Immettere testo libero per la fonte!"));
    return EsitoFonte::Mancata;
  }
  riga.TP = Codice(voce);
  riga.Testo = SpaziSingoli(controlli.txtLibero);
  return EsitoFonte::Composta;
}

}  // namespace torvi
