#include "shell/percorsi.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

TEST(Percorsi, FindsNamesInAnotherCase) {
  const CartellaDiProva cartella;
  ScriviByte(cartella.Mdb(QStringLiteral("Master.MDB")), "x");
  EXPECT_EQ(FileArchivio(cartella.Percorso(), QStringLiteral("master.mdb")),
            cartella.Mdb(QStringLiteral("Master.MDB")));
  // Folders too, and the file below one.
  EXPECT_EQ(TrovaPercorso(cartella.Percorso() + "/MDB/MASTER.mdb"),
            cartella.Mdb(QStringLiteral("Master.MDB")));
  // The exact spelling goes first.
  ScriviByte(cartella.Mdb(QStringLiteral("master.mdb")), "y");
  EXPECT_EQ(FileArchivio(cartella.Percorso(), QStringLiteral("master.mdb")),
            cartella.Mdb(QStringLiteral("master.mdb")));
}

TEST(Percorsi, KeepsTheSpellingOfWhatIsNotThere) {
  const CartellaDiProva cartella;
  EXPECT_EQ(FileUscita(cartella.Percorso(), QStringLiteral("errClasse.A01")),
            cartella.Dump(QStringLiteral("errClasse.A01")));
  EXPECT_EQ(TrovaPercorso(QStringLiteral("/Nessuna Cartella/a.mdb")),
            QStringLiteral("/Nessuna Cartella/a.mdb"));
}

TEST(Percorsi, MakesOnlyTheFoldersThatAreMissing) {
  const QTemporaryDir radice;
  ASSERT_TRUE(QDir(radice.path()).mkdir(QStringLiteral("Dump")));
  PreparaCartelle(radice.path());
  EXPECT_EQ(QDir(radice.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
            (QStringList{QStringLiteral("Dump"), QStringLiteral("mdb")}));
}

TEST(Percorsi, NamesTheFolderThatCannotBeMade) {
  const QTemporaryDir radice;
  ScriviByte(radice.filePath(QStringLiteral("dump")), "a file in its place");
  try {
    PreparaCartelle(radice.path());
    FAIL() << "no error";
  } catch (const ErroreEsecuzione& errore) {
    EXPECT_EQ(errore.Numero(), 75);
    EXPECT_TRUE(errore.Descrizione().contains(radice.filePath(QStringLiteral("dump"))));
  }
}

TEST(Percorsi, UpperCasesTheNameAlone) {
  EXPECT_EQ(NomeMaiuscolo(QStringLiteral("/casa/Archivi/prova è.mdb")),
            QStringLiteral("/casa/Archivi/PROVA È.MDB"));
  EXPECT_EQ(NomeMaiuscolo(QStringLiteral("a.mdb")), QStringLiteral("A.MDB"));
}

TEST(Percorsi, ListsFilesByPattern) {
  const CartellaDiProva cartella;
  for (const char* nome : {"lexxdump isis.A02", "LEXXDUMP storico.A01", "lexxdump", "lexxdum.A01",
                           "errori.A01", "altro lexxdump.A01"}) {
    ScriviByte(cartella.Dump(QLatin1String(nome)), "x");
  }
  ASSERT_TRUE(QDir(cartella.Percorso()).mkpath(QStringLiteral("dump/lexxdump cartella.A01")));
  EXPECT_EQ(ElencoFile(cartella.Percorso() + "/dump", QStringLiteral("lexxdump*.*")),
            (QStringList{QStringLiteral("lexxdump"), QStringLiteral("lexxdump isis.A02"),
                         QStringLiteral("LEXXDUMP storico.A01")}));
}

}  // namespace
}  // namespace torvi
