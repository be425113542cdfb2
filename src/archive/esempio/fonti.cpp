#include "archive/esempio/fonti.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace torvi::esempio {

namespace {

constexpr std::array<QStringView, 12> kMesi = {u"gennaio",   u"febbraio", u"marzo",    u"aprile",
                                               u"maggio",    u"giugno",   u"luglio",   u"agosto",
                                               u"settembre", u"ottobre",  u"novembre", u"dicembre"};
// Citations of one kind that are all new; of those after them one in four is. There are some forty
// kinds, so that the keys of the longest delivery fit 16 signed bits.
constexpr std::size_t kSempreNuove = 30;
constexpr std::array<QStringView, 4> kOrdinali = {u"bis", u"ter", u"quater", u"quinquies"};

// The kinds of act that the export looks up in the norm catalogue.
bool Catalogato(QStringView nome) {
  static constexpr std::array<QStringView, 9> kCatalogati = {
      u"l. cost.", u"d.l.", u"l.",          u"d.p.r.",    u"d.lg.",
      u"d.p.c.m.", u"r.d.", u"dir. p.c.m.", u"dir p.c.m."};
  return std::find(kCatalogati.begin(), kCatalogati.end(), nome) != kCatalogati.end();
}

}  // namespace

Citazioni::Citazioni(const Tavole& tavole) : tavole_(tavole) {
  for (const auto regole : {RegoleInterne(), RegoleAltre()}) {
    for (const RegolaFonte& regola : regole) {
      Stato& stato = stati_[regola.genere];
      stato.regola = &regola;
      if (regola.tavola != nullptr) Prepara(stato);
    }
  }
}

void Citazioni::Prepara(Stato& stato) {
  stato.atti = Filtra(
      tavole_.*stato.regola->tavola,
      QStringLiteral("nessun atto per le fonti %1").arg(QString::fromLatin1(stato.regola->tp)),
      stato.regola->ammette);
  std::copy_if(stato.atti.begin(), stato.atti.end(), std::back_inserter(stato.liberi),
               [](const Voce& atto) { return !Catalogato(atto.nome); });
  const auto nominato = [&stato](const AttoNoto& noto) {
    return std::any_of(stato.atti.begin(), stato.atti.end(),
                       [&](const Voce& atto) { return atto.nome == noto.nome; });
  };
  std::copy_if(tavole_.atti.begin(), tavole_.atti.end(), std::back_inserter(stato.noti), nominato);
}

FonteCitata Citazioni::Componi(Genere genere, Sorte& sorte) {
  Stato& stato = stati_.at(genere);
  if (stato.composte.size() >= kSempreNuove && !sorte.Una(4)) return sorte.Scegli(stato.composte);
  Composizione composizione{tavole_, stato.atti, stato.liberi, stato.noti, stato.giro++, sorte, {}};
  composizione.fonte.tp = QString::fromLatin1(stato.regola->tp);
  stato.regola->componi(composizione);
  return stato.composte.emplace_back(std::move(composizione.fonte));
}

QString Ripartizioni(Composizione& composizione) {
  Sorte& sorte = composizione.sorte;
  FonteCitata& fonte = composizione.fonte;
  fonte.articolo = QString::number(1 + sorte.Fino(120));
  QString testo = QStringLiteral("art. ") + fonte.articolo;
  if (sorte.Una(9)) {
    fonte.ripa = sorte.Scegli(kOrdinali).toString();
    testo += QLatin1Char(' ') + fonte.ripa;
  }
  if (sorte.Una(2)) {
    fonte.comma = QString::number(1 + sorte.Fino(6));
    testo += QStringLiteral(" comma ") + fonte.comma;
    if (sorte.Una(8)) {
      fonte.ripc = sorte.Scegli(kOrdinali).toString();
      testo += QLatin1Char(' ') + fonte.ripc;
    }
  }
  if (sorte.Una(6)) {
    fonte.lettera = QChar(u'a' + sorte.Fino(8));
    testo += QStringLiteral(" lett. ") + fonte.lettera;
  }
  if (sorte.Una(12)) {
    fonte.numeroP = QString::number(1 + sorte.Fino(9));
    testo += QStringLiteral(" n. ") + fonte.numeroP;
  }
  return testo + QLatin1Char(' ');
}

QString Data(Composizione& composizione, int primoAnno, int ultimoAnno) {
  FonteCitata& fonte = composizione.fonte;
  const int mese = composizione.sorte.Fino(12);
  fonte.giorno = QString::number(composizione.sorte.Tra(1, 28));
  fonte.mese = QString::number(mese + 1);
  // Recent ones more often than old ones.
  const int indietro =
      composizione.sorte.Fino(1 + composizione.sorte.Fino(ultimoAnno - primoAnno + 1));
  fonte.anno = QString::number(ultimoAnno - indietro);
  return QStringLiteral(" %1 %2 %3")
      .arg(fonte.giorno, kMesi[static_cast<std::size_t>(mese)].toString(), fonte.anno);
}

QString Data(FonteCitata& fonte, const AttoNoto& atto) {
  fonte.giorno = atto.giorno;
  fonte.mese = atto.mese;
  fonte.anno = atto.anno;
  fonte.numero = atto.numero;
  return QStringLiteral(" %1 %2 %3, n. %4")
      .arg(atto.giorno, kMesi[static_cast<std::size_t>(atto.mese.toInt() - 1)].toString(),
           atto.anno, atto.numero);
}

QString Numero(Composizione& composizione, int massimo) {
  composizione.fonte.numero = QString::number(composizione.sorte.Tra(1, massimo));
  return QStringLiteral(", n. ") + composizione.fonte.numero;
}

QString Decisione(Composizione& composizione) {
  const int caso = composizione.sorte.Fino(12);
  composizione.fonte.ordinanza = caso < 2;
  composizione.fonte.decreto = caso == 2;
  if (composizione.fonte.ordinanza) return QStringLiteral("ord. ");
  return composizione.fonte.decreto ? QStringLiteral("decr. ") : QString();
}

QString Sezione(Composizione& composizione, Sezioni sezioni) {
  if (composizione.sorte.Una(3)) return {};
  const QStringView sigla = composizione.sorte.Scegli(sezioni);
  for (const Voce& sezione : composizione.tavole.sezioni) {
    if (sezione.nome == sigla) composizione.fonte.sezione = sezione.id;
  }
  return composizione.fonte.sezione == 0 ? QString() : QLatin1Char(' ') + sigla.toString();
}

void Concludi(Composizione& composizione, const QString& testo) {
  composizione.fonte.testo = testo.simplified();
}

}  // namespace torvi::esempio
