#include "archive/errore.h"
#include "archive/recordset.h"
#include "fonti/componi_altra.h"
#include "fonti/composizione_altra.h"
#include "fonti/trattati.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

constexpr Pezzo kAllegato[] = {{u" all. ", &C::txtAll, &R::Allegato}};
constexpr Pezzo kNumeroDopoAnno[] = {{u", n. ", &C::txtN, &R::Numero}};
constexpr Pezzo kNumeroSolo[] = {{u" n. ", &C::txtN, &R::Numero}};

void ComponiTrattato(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                     const Database& archivio) {
  const Trattato trattato = LeggiTrattato(archivio, controlli.txtLibero);
  riga.FonteNorm = trattato.nit;
  riga.Numero = trattato.numero;
  riga.Altro = trattato.descrizione;
  riga.Anno = trattato.anno;
  riga.Mese = trattato.mese;
  riga.Giorno = trattato.giorno;
  Aggiungi(testo, riga, controlli, Articolo());
  Aggiungi(testo, riga, controlli, kAllegato);
  AggiungiNome(testo, trattato.fonte);
}

void ComponiAttoInternazionale(QString& testo, RigaFonte& riga, const ControlliFonte& controlli) {
  testo = *controlli.lstFonte;
  Aggiungi(testo, riga, controlli, Data());
  Aggiungi(testo, riga, controlli, controlli.txtAA.isEmpty() ? kNumeroSolo : kNumeroDopoAnno);
  Aggiungi(testo, riga, controlli, TestoLibero());
}

}  // namespace

EsitoFonte ComponiInternazionale(const ControlliFonte& controlli, const QString& tp,
                                 const Database& archivio, RigaFonte& riga, Dialoghi& dialoghi) {
  QString testo;
  if (tp == QLatin1String("NIT")) {
    ComponiTrattato(testo, riga, controlli, archivio);
  } else if (tp == QLatin1String("NIA")) {
    ComponiAttoInternazionale(testo, riga, controlli);
  } else if (!ComponiDecisione(testo, riga, controlli, dialoghi)) {
    return EsitoFonte::Mancata;
  }
  riga.Testo = SpaziSingoli(testo);
  // A treaty's name comes from its row, whatever the disabled list still shows.
  if (tp != QLatin1String("NIT")) riga.FonteNorm = *controlli.lstFonte;
  riga.TP = tp;
  return EsitoFonte::Composta;
}

}  // namespace torvi
