#include "fonti/composizione_altra.h"

namespace torvi {
namespace {

constexpr Pezzo kSezione[] = {{u" ", &ControlliFonte::txtInfo2, &RigaFonte::Sezione}};

QString Decisione(const ControlliFonte& controlli, RigaFonte& riga) {
  riga.Decreto = controlli.chkDecr;
  riga.Ordinanza = controlli.chkOrd;
  if (riga.Ordinanza) return QStringLiteral("ord. ");
  return riga.Decreto ? QStringLiteral("decr. ") : QString();
}

}  // namespace

bool AggiungiDataRichiesta(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                           Dialoghi& dialoghi) {
  // The third says "il" where another rule has "l'anno".
  static const QString kMancanze[] = {QStringLiteral("Manca il giorno!"),
                                      QStringLiteral("Manca il mese!"),
                                      QStringLiteral("Manca il anno!")};
  const QString* mancanza = kMancanze;
  for (const Pezzo& pezzo : Data()) {
    if (!AggiungiRichiesto(testo, riga, controlli, pezzo, *mancanza++, dialoghi)) return false;
  }
  return true;
}

bool ComponiDecisione(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                      Dialoghi& dialoghi) {
  testo = Decisione(controlli, riga) + *controlli.lstFonte;
  Aggiungi(testo, riga, controlli, kSezione);
  if (!AggiungiDataRichiesta(testo, riga, controlli, dialoghi)) return false;
  Aggiungi(testo, riga, controlli, TestoLibero());
  return true;
}

}  // namespace torvi
