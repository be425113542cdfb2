#include "export/urn.h"

#include "archive/errore.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

struct Guardia {
  PassoUrn passo;
  QLatin1StringView prima;
  QLatin1StringView successive;
};

// One act, spelled in as many ways as the archives know it: the differences are meant.
constexpr Guardia kGuardie[] = {
    {PassoUrn::Anno, "urn:nir:stato:decreto.presidente.repubblica:1959-06-15%3b393"_L1,
     "urn:nir:stato:decreto.presidente.repubblica:1959-06-15%3b393"_L1},
    {PassoUrn::Mese, "urn:nir:presidente.repubblica:decreto:1959-06-15%3b393"_L1,
     "urn:nir:stato:decreto.presidente.repubblica%3b1959-06-15%3b393"_L1},
    {PassoUrn::Giorno, "urn:nir:presidente.repubblica:decreto:1959-06-15%3b393"_L1,
     "urn:nir:stato:decreto.presidente.repubblica:1959-06-15%3b393"_L1},
    {PassoUrn::Numero, "urn:nir:presidente.repubblica:decreto:1959-06-15%3b393"_L1,
     "urn:nir:stato:decreto.presidente.repubblica:1959-06-15;393"_L1},
};

bool Protetta(const QString& urn, PassoUrn passo, bool primaFonte) {
  for (const Guardia& guardia : kGuardie) {
    if (guardia.passo == passo) return urn == (primaFonte ? guardia.prima : guardia.successive);
  }
  return false;
}

}  // namespace

void EstendiUrn(QString& urn, PassoUrn passo, const QString& valore, bool primaFonte) {
  if (urn.isEmpty() || Protetta(urn, passo, primaFonte)) return;
  switch (passo) {
    case PassoUrn::Anno:
      // Years are compared as text.
      if (valore > "1947"_L1) {
        urn += QLatin1Char(':') + valore;
      } else {
        urn.clear();
      }
      break;
    case PassoUrn::Mese:
    case PassoUrn::Giorno:
      urn += QLatin1StringView(valore.size() == 1 ? "-0" : "-") + valore;
      break;
    case PassoUrn::Numero:
      urn += "%3b"_L1 + valore;
      break;
  }
}

void CompletaUrn(QString& urn, const QString& nome) {
  if (urn.isEmpty()) return;
  constexpr QLatin1StringView kSegnaposto(".xxx");
  const auto posto = urn.indexOf(kSegnaposto);
  if (posto < 0) throw ErroreEsecuzione(Errore::ChiamataNonValida, urn);
  urn.replace(posto, kSegnaposto.size(), QLatin1Char('.') + nome);
}

}  // namespace torvi
