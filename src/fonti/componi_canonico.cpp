#include "archive/errore.h"
#include "fonti/componi_altra.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

constexpr Pezzo kCanone[] = {{u"can. ", &C::txtArt, &R::Articolo},
                             {u" par. ", &C::txtComma, &R::Comma},
                             {u" lett. ", &C::txtLett, &R::Lettera},
                             {u" n. ", &C::txtNumP, &R::NumeroP}};
// Without the adverbs of civil law.
constexpr Pezzo kArticoloCanonico[] = {{u"art. ", &C::txtArt, &R::Articolo},
                                       {u" comma ", &C::txtComma, &R::Comma},
                                       {u" lett. ", &C::txtLett, &R::Lettera},
                                       {u" n. ", &C::txtNumP, &R::NumeroP}};
constexpr Pezzo kAnno[] = {{u" ", &C::txtAA, &R::Anno}};
constexpr Pezzo kCitta[] = {{u" ", &C::txtInfo1, &R::Citta}};
constexpr Pezzo kCodiceRegione = {u" ", &C::ComboRegione, &R::Regione, u"", 2};

// The code in force is the default.
EsitoFonte ComponiCodice(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                         Dialoghi&) {
  static const QString kInVigore = QStringLiteral("1983");
  Aggiungi(testo, riga, controlli, kCanone);
  AggiungiNome(testo, *controlli.lstFonte);
  riga.FonteNorm = *controlli.lstFonte;
  if (controlli.txtAA.isEmpty()) {
    riga.Anno = kInVigore;
    testo += QLatin1Char(' ') + kInVigore;
  } else {
    Aggiungi(testo, riga, controlli, kAnno);
  }
  return EsitoFonte::Composta;
}

// Without article the citation begins with a blank.
EsitoFonte ComponiAltraNorma(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                             Dialoghi& dialoghi) {
  if (controlli.txtLibero.isEmpty()) {
    dialoghi.Messaggio(QStringLiteral("Manca la fonte!"));
    return EsitoFonte::Mancata;
  }
  Aggiungi(testo, riga, controlli, kArticoloCanonico);
  testo += QLatin1Char(' ') + controlli.txtLibero;
  Aggiungi(testo, riga, controlli, Estremi());
  return EsitoFonte::Composta;
}

EsitoFonte ComponiGiudice(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                          Dialoghi& dialoghi) {
  const QString& giudice = *controlli.lstFonte;
  testo = giudice;
  riga.FonteNorm = giudice;
  if (giudice == QLatin1String("Trib. Eccl. Reg.")) {
    if (!AggiungiRichiesto(testo, riga, controlli, kCodiceRegione,
                           QStringLiteral("Manca la regione!"), dialoghi)) {
      return EsitoFonte::Mancata;
    }
    testo = Trim(testo);
  } else if (giudice == QLatin1String("Trib. Eccl. Dioc.")) {
    Aggiungi(testo, riga, controlli, kCitta);
  }
  Aggiungi(testo, riga, controlli, Estremi());
  Aggiungi(testo, riga, controlli, TestoLibero());
  return EsitoFonte::Composta;
}

struct PerCodice {
  const char* tp;
  EsitoFonte (*compositore)(QString&, RigaFonte&, const ControlliFonte&, Dialoghi&);
};
constexpr PerCodice kPerCodice[] = {
    {"FCC", ComponiCodice}, {"FCA", ComponiAltraNorma}, {"FCG", ComponiGiudice}};

}  // namespace

EsitoFonte ComponiCanonico(const ControlliFonte& controlli, const QString& tp, RigaFonte& riga,
                           Dialoghi& dialoghi) {
  for (const PerCodice& voce : kPerCodice) {
    if (tp != QLatin1String(voce.tp)) continue;
    QString testo;
    const EsitoFonte esito = voce.compositore(testo, riga, controlli, dialoghi);
    if (esito != EsitoFonte::Composta) return esito;
    riga.Testo = SpaziSingoli(testo);
    riga.TP = tp;
    return esito;
  }
  throw ErroreEsecuzione(Errore::ChiamataNonValida, tp);
}

}  // namespace torvi
