#include "comune/tavole.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {

QList<QStringList> LeggiTavola(const char* nome) {
  QList<QStringList> casi;
  for (const QString& linea : QString::fromStdString(Dati(nome)).split('\n')) {
    if (!linea.isEmpty() && !linea.startsWith('#')) casi += linea.split('\t');
  }
  EXPECT_FALSE(casi.isEmpty()) << nome;
  return casi;
}

std::string Dati(const char* nome) {
  return Byte(FileProgetto(QStringLiteral("tests/dati/") + nome)).toStdString();
}

}  // namespace torvi
