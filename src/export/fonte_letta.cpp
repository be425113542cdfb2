#include "export/fonte_letta.h"

#include <QStringList>

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

QString IstruzioneFonti() {
  QStringList colonne = {QStringLiteral("legameDocFonte.IDDoc")};
  for (const QLatin1StringView colonna : kColonne) colonne += "tabFonte."_L1 + colonna;
  return "select "_L1 + colonne.join(", "_L1) +
         " from legameDocFonte, tabFonte where legameDocFonte.IDFnt = tabFonte.IDFonte "
         "order by legameDocFonte.IDDoc"_L1;
}

}  // namespace torvi
