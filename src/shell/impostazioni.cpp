#include "shell/impostazioni.h"

#include <QDir>
#include <QFile>

#include "shell/percorsi.h"

namespace torvi {
namespace {

// A value may stand in quotes; inside and outside of them a backslash or a quote may have a
// backslash in front, as programs write them.
QString Spogliato(QString valore) {
  if (valore.size() > 1 && valore.startsWith(u'"') && valore.endsWith(u'"')) {
    valore = valore.mid(1, valore.size() - 2);
  }
  return valore.replace(QLatin1String("\\\""), QLatin1String("\""))
      .replace(QLatin1String("\\\\"), QLatin1String("\\"));
}

// The last line "key=value" that has the key, before any section or in [General]. A value is what
// stands there and no more: it is not taken apart, and nothing is made of it.
QString Cerca(const QString& testo, QLatin1String chiave) {
  QString valore;
  bool generale = true;
  for (const QString& intera : testo.split(u'\n')) {
    const QString riga = intera.trimmed();
    if (riga.startsWith(u';') || riga.startsWith(u'#')) continue;
    if (riga.startsWith(u'[')) {
      generale = riga.compare(QLatin1String("[General]"), Qt::CaseInsensitive) == 0;
      continue;
    }
    const qsizetype uguale = riga.indexOf(u'=');
    if (!generale || uguale < 0 || riga.first(uguale).trimmed() != chiave) continue;
    valore = Spogliato(riga.sliced(uguale + 1).trimmed());
  }
  return valore;
}

QString Valore(const QString& cartellaApplicazione, const char* chiave, const char* difetto) {
  constexpr qint64 kMassimo = 1 << 20;
  QFile file(TrovaPercorso(cartellaApplicazione + QLatin1String("/TorviEditor.ini")));
  if (!file.open(QIODevice::ReadOnly)) return QLatin1String(difetto);
  QString testo = QString::fromUtf8(file.read(kMassimo));
  if (testo.startsWith(QChar::ByteOrderMark)) testo.remove(0, 1);
  const QString valore = Cerca(testo, QLatin1String(chiave));
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
