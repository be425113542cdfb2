#include "export/lettore_fascicoli.h"

namespace torvi {

Recordset ApriRiferimento(const Database& archivio, qint16 idRifBibl) {
  return archivio.OpenRecordset(
      QStringLiteral("select * from tabRifBibl, tabRivista where tabRifBibl.IDRifBibl = ? and "
                     "tabRifBibl.IDRivista = tabRivista.IDRivista"),
      {static_cast<qint64>(idRifBibl)});
}

}  // namespace torvi
