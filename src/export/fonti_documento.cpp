#include "export/fonti_documento.h"

namespace torvi {

std::vector<Riga> FontiDocumento(LegamiInOrdine& legami, qint64 idDoc) {
  std::vector<Riga> fonti;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    fonti.push_back(legami.Riga().Copia());
  }
  return fonti;
}

}  // namespace torvi
