#include "export/fonti_documento.h"

namespace torvi {

Recordset FontiDocumento(const Database& archivio, qint64 idDoc) {
  return archivio.OpenRecordset(
      QStringLiteral("select * from legameDocFonte, tabFonte where legameDocFonte.IDDoc = ? and "
                     "legameDocFonte.IDFnt = tabFonte.IDFonte"),
      {idDoc});
}

}  // namespace torvi
