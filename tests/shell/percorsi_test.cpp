#include "shell/percorsi.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

TEST(Percorsi, FindsNamesInAnotherCase) {
  const CartellaDiProva cartella;
  ScriviByte(cartella.Mdb("Master.MDB"), "x");
  EXPECT_EQ(FileArchivio(cartella.Percorso(), "master.mdb"), cartella.Mdb("Master.MDB"));
  // Folders too, and the file below one.
  EXPECT_EQ(TrovaPercorso(cartella.Percorso() + "/MDB/MASTER.mdb"), cartella.Mdb("Master.MDB"));
  // The exact spelling goes first.
  ScriviByte(cartella.Mdb("master.mdb"), "y");
  EXPECT_EQ(FileArchivio(cartella.Percorso(), "master.mdb"), cartella.Mdb("master.mdb"));
}

TEST(Percorsi, KeepsTheSpellingOfWhatIsNotThere) {
  const CartellaDiProva cartella;
  EXPECT_EQ(FileUscita(cartella.Percorso(), "errClasse.A01"), cartella.Dump("errClasse.A01"));
  EXPECT_EQ(TrovaPercorso("/Nessuna Cartella/a.mdb"), "/Nessuna Cartella/a.mdb");
}

TEST(Percorsi, MakesOnlyTheFoldersThatAreMissing) {
  const QTemporaryDir radice;
  ASSERT_TRUE(QDir(radice.path()).mkdir("Dump"));
  PreparaCartelle(radice.path());
  EXPECT_EQ(QDir(radice.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
            (QStringList{"Dump", "mdb"}));
}

TEST(Percorsi, NamesTheFolderThatCannotBeMade) {
  const QTemporaryDir radice;
  ScriviByte(radice.filePath("dump"), "a file in its place");
  const QString errore = ErroreDi([&] { PreparaCartelle(radice.path()); });
  EXPECT_TRUE(errore.startsWith("75 ") && errore.contains(radice.filePath("dump")))
      << errore.toStdString();
}

TEST(Percorsi, UpperCasesTheNameAlone) {
  EXPECT_EQ(NomeMaiuscolo("/casa/Archivi/prova è.mdb"), "/casa/Archivi/PROVA È.MDB");
  EXPECT_EQ(NomeMaiuscolo("a.mdb"), "A.MDB");
}

TEST(Percorsi, ListsFilesByPattern) {
  const CartellaDiProva cartella;
  for (const char* nome : {"lexxdump isis.A02", "LEXXDUMP storico.A01", "lexxdump", "lexxdum.A01",
                           "errori.A01", "altro lexxdump.A01"}) {
    ScriviByte(cartella.Dump(nome), "x");
  }
  ASSERT_TRUE(QDir(cartella.Percorso()).mkpath("dump/lexxdump cartella.A01"));
  EXPECT_EQ(ElencoFile(cartella.Percorso() + "/dump", "lexxdump*.*"),
            (QStringList{"lexxdump", "lexxdump isis.A02", "LEXXDUMP storico.A01"}));
}

}  // namespace
}  // namespace torvi
