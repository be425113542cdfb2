#include "fonti/componi_altra.h"

namespace torvi {
namespace {

constexpr Pezzo kStato[] = {{u" (", &ControlliFonte::txtStato, &RigaFonte::Stato, u")"}};

}  // namespace

EsitoFonte ComponiStraniero(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                            Dialoghi& dialoghi) {
  if (controlli.txtLibero.isEmpty() || controlli.txtStato.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Manca la fonte e/o lo stato!"));
    return EsitoFonte::Mancata;
  }
  QString testo;
  if (tp == QLatin1String("NS")) Aggiungi(testo, riga, controlli, Articolo());
  AggiungiNome(testo, controlli.txtLibero);
  Aggiungi(testo, riga, controlli, Estremi());
  Aggiungi(testo, riga, controlli, kStato);
  riga.Testo = SpaziSingoli(testo);
  riga.TP = tp;
  return EsitoFonte::Composta;
}

}  // namespace torvi
