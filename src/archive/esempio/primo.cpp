#include "archive/esempio/primo.h"

#include <algorithm>

#include "archive/esempio/testi.h"

namespace torvi::esempio {

namespace {

constexpr int kTrimestrale = 3;

qint64 RivistaAdatta(const Tavole& tavole) {
  const auto rivista =
      std::find_if(tavole.riviste.begin(), tavole.riviste.end(), [](const Rivista& una) {
        return una.periodicita == kTrimestrale &&
               una.titolo.contains(QLatin1String("diritto amministrativo"));
      });
  return rivista == tavole.riviste.end() ? tavole.riviste.front().id : rivista->id;
}

FonteCitata Legge(const Tavole& tavole) {
  FonteCitata legge;
  legge.tp = QStringLiteral("LIO");
  legge.fonte = Trova(tavole.interne, u"l.").id;
  legge.articolo = QStringLiteral("2");
  legge.giorno = QStringLiteral("7");
  legge.mese = QStringLiteral("8");
  legge.anno = QStringLiteral("1990");
  legge.numero = QStringLiteral("241");
  legge.testo = QStringLiteral("art. 2 l. 7 agosto 1990, n. 241");
  return legge;
}

FonteCitata Decisione(const Tavole& tavole) {
  FonteCitata decisione;
  decisione.tp = QStringLiteral("GIA");
  decisione.fonte = Trova(tavole.interne, u"Cons. Stato").id;
  decisione.sezione = Trova(tavole.sezioni, u"IV").id;
  decisione.giorno = QStringLiteral("10");
  decisione.mese = QStringLiteral("7");
  decisione.anno = QStringLiteral("2000");
  decisione.numero = QStringLiteral("3853");
  decisione.testo = QStringLiteral("Cons. Stato IV 10 luglio 2000, n. 3853");
  return decisione;
}

// Two pairs of one systematic code, of administrative law where the master has that field.
std::vector<Classe> Coppie(const Tavole& tavole) {
  const auto diUna = [](const Coppia& prima, const Coppia& seconda) {
    return prima.sigla == u"AMM" && prima.sistematico == seconda.sistematico;
  };
  const auto trovate = std::adjacent_find(tavole.coppie.begin(), tavole.coppie.end(), diUna);
  const auto prima = trovate == tavole.coppie.end() ? tavole.coppie.begin() : trovate;
  return {{*prima, '0'}, {*std::next(prima), '0'}};
}

}  // namespace

Documento PrimoDocumento(const Tavole& tavole) {
  Documento d;
  d.riferimento.rivista = RivistaAdatta(tavole);
  d.riferimento.annata = QStringLiteral("47");
  d.riferimento.fascicolo = QStringLiteral("1");
  d.riferimento.parte = QStringLiteral("I");
  d.riferimento.data = QStringLiteral("15/03/2001");
  d.pagine = QStringLiteral("101-120");
  d.td = QStringLiteral("02");
  d.tabs = QStringLiteral("600");
  d.bib = QStringLiteral("1");
  d.persone = {{QStringLiteral("Rossi"), QStringLiteral("Mario"), true},
               {QStringLiteral("Bianchi"), QStringLiteral("Anna"), true}};
  d.testi[kTitolo] = QStringLiteral("Il silenzio dell’amministrazione tra legge e giurisprudenza");
  d.testi[kSommario] = QStringLiteral(
      "1. Premessa\\2. L’obbligo di provvedere\\3. I rimedi contro l’inerzia\\4. Conclusioni");
  d.testi[kNota] = QStringLiteral("Nota a Cons. Stato IV 10 luglio 2000, n. 3853");
  d.fonti = {Legge(tavole), Decisione(tavole)};
  d.classi = Coppie(tavole);
  return d;
}

}  // namespace torvi::esempio
