#include "export/fonte_letta.h"

#include <QStringList>

#include "archive/errore.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

// As ColonnaFonte has them, behind IDDoc.
constexpr std::array kColonne = {
    "IDFonte"_L1,    "TP"_L1,          "fonte"_L1,
    "testo"_L1,      "articolo"_L1,    "comma"_L1,
    "lettera"_L1,    "allegato"_L1,    "ripa"_L1,
    "ripc"_L1,       "numero"_L1,      "giorno"_L1,
    "mese"_L1,       "anno"_L1,        "altro"_L1,
    "ordinanza"_L1,  "IDRegione"_L1,   "IDProvincia"_L1,
    "IDCitta"_L1,    "IDMinistero"_L1, "IDAmministrazione"_L1,
    "IDAutorita"_L1, "IDSezione"_L1,   "IDStato"_L1,
};
static_assert(kColonne.size() == static_cast<std::size_t>(ColonnaFonte::IDStato));

}  // namespace

ColonneAssenti FontiSenza(const Database& archivio) {
  const QStringList presenti = archivio.Colonne(QStringLiteral("tabFonte"));
  ColonneAssenti assenti = 0;
  for (std::size_t i = 0; i < kColonne.size(); ++i) {
    if (!presenti.contains(kColonne.at(i), Qt::CaseInsensitive)) assenti |= 1U << (i + 1);
  }
  return assenti;
}

QString IstruzioneFonti(ColonneAssenti assenti) {
  const QString documento = QStringLiteral("legameDocFonte.IDDoc");
  QStringList colonne = {documento};
  for (std::size_t i = 0; i < kColonne.size(); ++i) {
    const bool manca = (assenti >> (i + 1) & 1U) != 0;
    colonne += manca ? documento : "tabFonte."_L1 + kColonne.at(i);
  }
  return "select "_L1 + colonne.join(", "_L1) +
         " from legameDocFonte, tabFonte where legameDocFonte.IDFnt = tabFonte.IDFonte "
         "order by legameDocFonte.IDDoc"_L1;
}

void FonteLetta::Manca(ColonnaFonte colonna) {
  throw ErroreEsecuzione(
      Errore::ParametriInsufficienti,
      "TabFonte."_L1 + kColonne.at(static_cast<std::size_t>(colonna) - 1));
}

}  // namespace torvi
