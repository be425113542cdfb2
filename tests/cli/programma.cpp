#include "programma.h"

#include <gtest/gtest.h>

#include <QProcess>

#include "archive/database.h"

namespace torvi {

EsitoProgramma Torvi(const QStringList& argomenti, const QStringList& davanti,
                     const QByteArray& ingresso) {
  QStringList riga = davanti;
  riga.append(QStringLiteral(TORVI_PROGRAMMA));
  riga.append(argomenti);
  QProcess processo;
  processo.start(riga.takeFirst(), riga);
  processo.write(ingresso);
  processo.closeWriteChannel();
  EXPECT_TRUE(processo.waitForFinished(-1)) << processo.errorString().toStdString();
  EXPECT_EQ(processo.exitStatus(), QProcess::NormalExit);
  return {processo.exitCode(), QString::fromUtf8(processo.readAllStandardOutput()),
          QString::fromUtf8(processo.readAllStandardError())};
}

QString Informazioni(const QString& archivio) {
  const Database database = OpenDatabase(archivio, Accesso::SolaLettura);
  const Recordset info = database.OpenRecordset(QStringLiteral("TabInfo"));
  QStringList valori;
  for (const QString& colonna : database.Colonne(QStringLiteral("TabInfo"))) {
    const Campo campo = info.Fields(colonna.toStdString());
    valori.append(campo.Nullo() ? QStringLiteral("-") : campo.Testo());
  }
  return valori.join(u' ');
}

}  // namespace torvi
