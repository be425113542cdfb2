#include "archive/esempio/lingua.h"

#include <array>

namespace torvi::esempio {

namespace {

struct Articolata {
  QStringView articolo;  // with what parts it from the noun
  QStringView di, a, su, in;
};

constexpr std::array kArticolate = {
    Articolata{u"il ", u"del ", u"al ", u"sul ", u"nel "},
    Articolata{u"lo ", u"dello ", u"allo ", u"sullo ", u"nello "},
    Articolata{u"la ", u"della ", u"alla ", u"sulla ", u"nella "},
    Articolata{u"i ", u"dei ", u"ai ", u"sui ", u"nei "},
    Articolata{u"gli ", u"degli ", u"agli ", u"sugli ", u"negli "},
    Articolata{u"le ", u"delle ", u"alle ", u"sulle ", u"nelle "},
    Articolata{u"l’", u"dell’", u"all’", u"sull’", u"nell’"},
};

QStringView Forma(const Articolata& articolata, QStringView preposizione) {
  if (preposizione == u"di") return articolata.di;
  if (preposizione == u"a") return articolata.a;
  return preposizione == u"su" ? articolata.su : articolata.in;
}

}  // namespace

QString ConPreposizione(QStringView preposizione, QStringView nome) {
  for (const Articolata& articolata : kArticolate) {
    if (nome.startsWith(articolata.articolo)) {
      return Forma(articolata, preposizione).toString() + nome.mid(articolata.articolo.size());
    }
  }
  return preposizione.toString() + QLatin1Char(' ') + nome;
}

QString SenzaArticolo(QStringView nome) {
  for (const Articolata& articolata : kArticolate) {
    if (nome.startsWith(articolata.articolo)) {
      return nome.mid(articolata.articolo.size()).toString();
    }
  }
  return nome.toString();
}

QString Maiuscola(const QString& testo) { return testo.left(1).toUpper() + testo.mid(1); }

QString ConTema(QStringView frase, QStringView tema) {
  const std::array ricambi = {
      Ricambio{u"{T}", tema.toString()},
      Ricambio{u"{Tm}", Maiuscola(tema.toString())},
      Ricambio{u"{S}", SenzaArticolo(tema)},
      Ricambio{u"{DI}", ConPreposizione(u"di", tema)},
      Ricambio{u"{A}", ConPreposizione(u"a", tema)},
      Ricambio{u"{SU}", ConPreposizione(u"su", tema)},
      Ricambio{u"{IN}", ConPreposizione(u"in", tema)},
  };
  return Sostituisci(frase.toString(), ricambi);
}

QString Sostituisci(QString frase, std::span<const Ricambio> ricambi) {
  for (const Ricambio& ricambio : ricambi) {
    frase.replace(ricambio.segno.toString(), ricambio.testo);
  }
  return frase;
}

}  // namespace torvi::esempio
