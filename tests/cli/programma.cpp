#include "programma.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace torvi {

EsitoProgramma Torvi(const QStringList& argomenti, const QStringList& davanti,
                     const QByteArray& ingresso) {
  QStringList riga = davanti;
  riga.append(TORVI_PROGRAMMA);
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

}  // namespace torvi
