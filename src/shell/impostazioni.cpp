#include "shell/impostazioni.h"

#include <QDir>
#include <QSettings>

#include "shell/percorsi.h"

namespace torvi {
namespace {

QString Valore(const QString& cartellaApplicazione, const char* chiave, const char* difetto) {
  const QSettings file(TrovaPercorso(cartellaApplicazione + QLatin1String("/TorviEditor.ini")),
                       QSettings::IniFormat);
  // A comma in the value makes a list of it.
  const QString valore = file.value(QLatin1String(chiave)).toStringList().join(QLatin1Char(','));
  return valore.isEmpty() ? QLatin1String(difetto) : valore;
}

}  // namespace

QString LeggiImpostazione(const QString& cartellaApplicazione, Impostazione quale) {
  switch (quale) {
    case Impostazione::CartellaClassificazione:
      return QDir(cartellaApplicazione)
          .absoluteFilePath(
              Valore(cartellaApplicazione, "CartellaClassificazione", "classificazione/mdb"));
    case Impostazione::IndirizzoCelex:
      return Valore(cartellaApplicazione, "IndirizzoCelex", "https://eur-lex.europa.eu");
    case Impostazione::IndirizzoHudoc:
      return Valore(cartellaApplicazione, "IndirizzoHudoc", "https://hudoc.echr.coe.int");
  }
  return {};
}

}  // namespace torvi
