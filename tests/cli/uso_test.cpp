#include <gtest/gtest.h>

#include <QProcess>

#include "programma.h"

namespace torvi {
namespace {

QStringList Parole(const char* riga) {
  return QString::fromUtf8(riga).split(u' ', Qt::SkipEmptyParts);
}

TEST(Uso, WhatMakesNoSenseIsAnsweredWithTheUsage) {
  struct Caso {
    const char* argomenti;
    const char* motivo;
  };
  const Caso kCasi[] = {
      {"", "torvi: manca il comando"},
      {"esportare isis a.mdb", "torvi: comando sconosciuto: esportare"},
      {"stampare celex a.mdb", "torvi: comando sconosciuto: stampare"},
      {"stampa tutto a.mdb", "torvi: non si conosce \"tutto\""},
      {"stampa completa a.mdb --filtro", "torvi: --filtro vale solo per la stampa dei testi"},
      {"--cartelle /tmp verifica a.mdb", "torvi: opzione sconosciuta: cartelle"},
      {"esporta isis a.mdb --accodare f", "torvi: opzione sconosciuta: accodare"},
      {"esporta isis a.mdb --accoda", "torvi: manca il valore di un'opzione"},
      {"esporta isis a.mdb --accoda=", "torvi: --accoda vuole il nome di un file"},
      {"esporta isis", "torvi: gli argomenti di \"esporta\" sono 2"},
      {"esporta isis a.mdb b.mdb", "torvi: gli argomenti di \"esporta\" sono 2"},
      {"esporta rtf a.mdb", "torvi: non si conosce \"rtf\""},
      {"componi estera a.mdb", "torvi: la forma deve essere interna o altra"},
      {"componi interna", "torvi: gli argomenti di \"componi\" sono 2"},
      {"errori tutti a.mdb", "torvi: non si conosce \"tutti\""},
      {"cerca a.mdb --campo Titolo", "torvi: gli argomenti di \"cerca\" sono almeno 2"},
      {"cerca a.mdb parola", "torvi: manca --campo CAMPO"},
      {"cerca a.mdb --campo Titoli parola", "torvi: non si conosce il campo \"Titoli\""},
      {"cerca a.mdb --campo Titolo --parte tutto parola",
       "torvi: --parte deve essere tutte, una o sequenza"},
      {"converti a.mdb", "torvi: gli argomenti di \"converti\" sono 2"},
      {"esempio a.mdb --documenti 0", "torvi: --documenti va da 1 a 32750"},
      {"esempio a.mdb --documenti 32751", "torvi: --documenti va da 1 a 32750"},
      {"esempio a.mdb --documenti dieci", "torvi: --documenti va da 1 a 32750"},
      {"nuovo a.mdb --consegna A01 --inizio 1 --centro A", "torvi: --anno deve essere"},
      {"nuovo a.mdb --consegna A01 --inizio 1 --centro AB --anno 2001",
       "torvi: --centro deve essere"},
      {"nuovo a.mdb --consegna A01 --inizio 1 --centro 0 --anno 2001",
       "torvi: --centro deve essere"},
      {"nuovo a.mdb --consegna A01 --inizio 1 --centro A --anno 01", "torvi: --anno deve essere"},
      {"nuovo a.mdb --consegna A|1 --inizio 1 --centro A --anno 2001",
       "torvi: --consegna deve essere"},
  };
  for (const Caso& caso : kCasi) {
    const EsitoProgramma esito = Torvi(Parole(caso.argomenti));
    EXPECT_EQ(esito.codice, 2) << caso.argomenti;
    EXPECT_TRUE(esito.errori.startsWith(caso.motivo))
        << caso.argomenti << ": " << esito.errori.toStdString();
    EXPECT_TRUE(esito.errori.contains("\n\nUso: torvi ")) << caso.argomenti;
    EXPECT_TRUE(esito.uscita.isEmpty()) << caso.argomenti;
  }
}

TEST(Uso, HelpIsThereForTheProgramAndForEachCommand) {
  const QString generale = Torvi({"--aiuto"}).uscita;
  EXPECT_TRUE(generale.startsWith("Uso: torvi [--cartella DIR] COMANDO"));
  for (const char* comando :
       {"nuovo", "esporta", "errori", "stampa", "estrai", "lotto", "controllo", "cerca", "componi",
        "converti", "verifica", "master", "catalogo", "esempio"}) {
    const QString nome = comando;
    EXPECT_TRUE(generale.contains(QStringLiteral("  torvi %1 ").arg(nome))) << comando;
    const EsitoProgramma esito = Torvi({nome, "--aiuto"});
    EXPECT_EQ(esito.codice, 0);
    EXPECT_TRUE(
        esito.uscita.startsWith(QStringLiteral("Uso: torvi [--cartella DIR] %1 ").arg(nome)))
        << esito.uscita.toStdString();
    EXPECT_TRUE(esito.errori.isEmpty()) << esito.errori.toStdString();
  }
}

TEST(Uso, ATerminalWithoutUtf8ChangesNothing) {
  const EsitoProgramma esito = Torvi({"--aiuto"}, {"env", "LC_ALL=C"});
  EXPECT_EQ(esito.codice, 0);
  EXPECT_TRUE(esito.errori.isEmpty()) << esito.errori.toStdString();
  EXPECT_EQ(esito.uscita, Torvi({"--aiuto"}).uscita);
}

TEST(Uso, OutputThatCannotBeWrittenIsAFailure) {
  QProcess processo;
  processo.setStandardOutputFile("/dev/full");
  processo.start(TORVI_PROGRAMMA, {"--aiuto"});
  ASSERT_TRUE(processo.waitForFinished(-1));
  EXPECT_EQ(processo.exitCode(), 1);
}

// The companion runs where no graphical library is installed.
TEST(Uso, TheProgramLoadsNoGraphicalLibrary) {
  QProcess ldd;
  ldd.start("ldd", {TORVI_PROGRAMMA});
  ASSERT_TRUE(ldd.waitForFinished(-1));
  const QByteArray librerie = ldd.readAllStandardOutput();
  EXPECT_TRUE(librerie.contains("libQt6Core"));
  EXPECT_FALSE(librerie.contains("libQt6Gui")) << librerie.toStdString();
  EXPECT_FALSE(librerie.contains("libQt6Widgets")) << librerie.toStdString();
}

}  // namespace
}  // namespace torvi
