#include "archive/esempio/riferimenti.h"

#include <array>

namespace torvi::esempio {

namespace {

constexpr int kSenzaFascicoli = 9;
// Issues a year, by the code of the periodicity.
constexpr std::array kFascicoliAnno = {12, 6, 4, 3, 2, 1, 24, 52};

int FascicoliAnno(const Rivista& rivista) {
  const auto posto = static_cast<std::size_t>(rivista.periodicita) - 1;
  return posto < kFascicoliAnno.size() ? kFascicoliAnno[posto] : 0;
}

int Anno(Sorte& sorte) {
  const int caso = sorte.Fino(20);
  if (caso < 12) return 2001;
  return caso < 17 ? 2000 : sorte.Tra(1996, 1999);
}

QString DueCifre(int numero) { return QString::number(numero).rightJustified(2, u'0'); }

QString Fascicolo(Sorte& sorte, int numero, int totale) {
  const bool doppio = totale >= 4 && numero < totale && sorte.Una(8);
  return doppio ? QStringLiteral("%1-%2").arg(numero).arg(numero + 1) : QString::number(numero);
}

QString Data(Sorte& sorte, int anno, int mese, int totale) {
  const bool conGiorno = totale > 12 || sorte.Una(2);
  return QStringLiteral("%1/%2/%3")
      .arg(DueCifre(conGiorno ? sorte.Tra(1, 28) : 0), DueCifre(mese))
      .arg(anno);
}

Riferimento Nuovo(const Tavole& tavole, Sorte& sorte) {
  const Rivista& rivista = sorte.Scegli(tavole.riviste);
  const int anno = Anno(sorte);
  const int totale = FascicoliAnno(rivista);
  Riferimento riferimento;
  riferimento.rivista = rivista.id;
  riferimento.annata = QString::number(anno - 1930 - static_cast<int>(rivista.id * 7 % 60));
  if (rivista.periodicita == kSenzaFascicoli || totale == 0) {
    riferimento.volume = riferimento.annata;
    riferimento.data = QStringLiteral("00/00/%1").arg(anno);
    return riferimento;
  }
  const int numero = sorte.Tra(1, totale);
  riferimento.fascicolo = Fascicolo(sorte, numero, totale);
  riferimento.data = Data(sorte, anno, (numero * 12 + totale - 1) / totale, totale);
  if (rivista.id % 5 == 0)
    riferimento.parte = sorte.Una(2) ? QStringLiteral("I") : QStringLiteral("II");
  if (rivista.id % 7 == 0) riferimento.serie = QStringLiteral("2");
  if (sorte.Una(25)) riferimento.supplemento = QStringLiteral("1");
  if (sorte.Una(25)) riferimento.sezione = QStringLiteral("II");
  return riferimento;
}

}  // namespace

void Fascicoli::Assegna(Documento& documento, Sorte& sorte) {
  if (rimasti_ == 0) {
    corrente_ = Nuovo(tavole_, sorte);
    rimasti_ = sorte.Tra(2, 5);
  }
  --rimasti_;
  documento.riferimento = corrente_;
  const QString fascicolo =
      QStringLiteral("%1 %2 %3").arg(corrente_.rivista).arg(corrente_.data, corrente_.fascicolo);
  int& pagina = pagine_.try_emplace(fascicolo, sorte.Tra(1, 400)).first->second;
  const int ultima = pagina + sorte.Tra(1, 29);
  documento.pagine =
      sorte.Una(15) ? QString::number(pagina) : QStringLiteral("%1-%2").arg(pagina).arg(ultima);
  pagina = ultima + 1;
}

}  // namespace torvi::esempio
