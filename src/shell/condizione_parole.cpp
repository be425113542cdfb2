#include "shell/condizione_parole.h"

#include <QStringList>

namespace torvi {

QString CondizioneParole(const QString& colonna, ModoCampo modo, QString parole) {
  parole.replace(QLatin1String("'"), QLatin1String("''"));
  if (modo == ModoCampo::Intero) return colonna + QLatin1String(" = '") + parole + u'\'';
  QStringList termini =
      modo == ModoCampo::Sequenza ? QStringList(parole) : parole.split(QLatin1Char(' '));
  for (QString& termine : termini) {
    termine = colonna + QLatin1String(" like '*") + termine + QLatin1String("*'");
  }
  return termini.join(modo == ModoCampo::AlmenoUna ? QLatin1String(" OR ")
                                                   : QLatin1String(" AND "));
}

}  // namespace torvi
