#include "export/fonti_documento.h"

namespace torvi {

std::vector<Riga> FontiDocumento(const Database& archivio, qint64 idDoc) {
  return archivio.LeggiRighe(
      QStringLiteral("select * from legameDocFonte, tabFonte where legameDocFonte.IDDoc = ? and "
                     "legameDocFonte.IDFnt = tabFonte.IDFonte"),
      {idDoc});
}

}  // namespace torvi
