#include "export/fonti_documento.h"

namespace torvi {

std::vector<FonteLetta> FontiDocumento(LegamiInOrdine& legami, qint64 idDoc) {
  std::vector<FonteLetta> fonti;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    fonti.emplace_back(legami.Riga().Copia());
  }
  return fonti;
}

}  // namespace torvi
