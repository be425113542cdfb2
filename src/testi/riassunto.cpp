#include "testi/riassunto.h"

#include <algorithm>
#include <array>

#include "archive/errore.h"

namespace torvi {
namespace {

constexpr std::array<TipoRiassunto, 4> kTipi = {{
    {"0", "Testo riassunto", "Riassunto", Lingua::Italiano, &StatoGlobale::TestoRiassunto},
    {"1", "Testo sommario", "Sommario", Lingua::Italiano, &StatoGlobale::TestoSommario},
    {"2", "Testo 'In tema di'", "In tema di", Lingua::Italiano, &StatoGlobale::TestoInTemaDi},
    {"3", "Testo 'English abstract'", "English abstract", Lingua::Inglese,
     &StatoGlobale::TestoEnglishAbstract},
}};

}  // namespace

const TipoRiassunto& TrovaTipoRiassunto(const QString& tipo) {
  const auto* trovato = std::find_if(kTipi.begin(), kTipi.end(), [&tipo](const TipoRiassunto& t) {
    return tipo == QLatin1String(t.tipo);
  });
  if (trovato == kTipi.end()) throw ErroreEsecuzione(Errore::ChiamataNonValida, tipo);
  return *trovato;
}

void SalvaRiassunto(StatoGlobale& stato, const TipoRiassunto& tipo, QString testo) {
  stato.*tipo.testo = testo.remove(QLatin1String("\r\n"));
}

}  // namespace torvi
