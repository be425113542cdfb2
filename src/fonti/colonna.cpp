#include "fonti/colonna.h"

#include "archive/recordset.h"

namespace torvi {

QStringList Colonna(const Database& archivio, const QString& righe, std::string_view colonna) {
  QStringList valori;
  for (Recordset r = archivio.OpenRecordset(righe); !r.Eof(); r.MoveNext()) {
    valori += r.Fields(colonna).TestoOVuoto();
  }
  return valori;
}

}  // namespace torvi
