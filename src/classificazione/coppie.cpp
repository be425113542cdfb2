#include "classificazione/coppie.h"

namespace torvi {
namespace {

bool Ammessa(const Database& archivio, QLatin1String tabella, const QString& sistematico,
             const QString& descrittore) {
  const QString istruzione = QStringLiteral("select * from ") + tabella +
                             QStringLiteral(" where NS = '") + sistematico +
                             QStringLiteral("' and ND = '") + descrittore + QLatin1Char('\'');
  return !archivio.OpenRecordset(istruzione).Eof();
}

}  // namespace

qint16 CheckCodice(const Database& archivio, const QString& sistematico,
                   const QString& descrittore) {
  return Ammessa(archivio, QLatin1String("TabLegameDS"), sistematico, descrittore) ? 0 : 1;
}

qint16 CheckTermine(const Database& archivio, const QString& sistematico, const QString& termine) {
  QString raddoppiato = termine;
  raddoppiato.replace(QLatin1Char('\''), QLatin1String("''"));
  return Ammessa(archivio, QLatin1String("TabLegameDSA"), sistematico, raddoppiato) ? 2 : 3;
}

}  // namespace torvi
