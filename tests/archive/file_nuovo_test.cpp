#include "archive/file_nuovo.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

class NuovoFile : public testing::Test {
 protected:
  [[nodiscard]] QStringList Presenti() const {
    return QDir(cartella_.Percorso() + "/mdb").entryList(QDir::Files, QDir::Name);
  }
  CartellaDiProva cartella_;
  QString destinazione_ = cartella_.Mdb("A01.MDB");
};

TEST_F(NuovoFile, LeavesNothingBehindUntilItIsComplete) {
  {
    FileNuovo file(destinazione_);
    EXPECT_FALSE(QFile::exists(file.Percorso()));
    ScriviByte(file.Percorso(), "mezzo");
    ScriviByte(file.Percorso() + "-journal", "diario");
  }
  EXPECT_TRUE(Presenti().isEmpty()) << Presenti().join(u' ').toStdString();
  FileNuovo file(destinazione_);
  ScriviByte(file.Percorso(), "intero");
  file.Consegna();
  EXPECT_EQ(Byte(destinazione_), "intero");
  EXPECT_EQ(Presenti().size(), 1);
}

TEST_F(NuovoFile, ReplacesOnlyWhereItIsToldTo) {
  ScriviByte(destinazione_, "vecchio");
  ScriviByte(destinazione_ + "-journal", "diario del vecchio");
  {
    FileNuovo file(destinazione_);
    ScriviByte(file.Percorso(), "nuovo");
    EXPECT_EQ(NumeroErrore([&] { file.Consegna(); }), 75);
  }
  EXPECT_EQ(Byte(destinazione_), "vecchio");
  FileNuovo file(destinazione_);
  ScriviByte(file.Percorso(), "nuovo");
  file.Sostituisci();
  EXPECT_EQ(Byte(destinazione_), "nuovo");
  // The old journal would be played back into the new file.
  EXPECT_EQ(Presenti(), QStringList{"A01.MDB"});
}

TEST_F(NuovoFile, StartsAsAWritableCopy) {
  const QString master = cartella_.Mdb("master.mdb");
  ScriviByte(master, "master");
  QFile::setPermissions(master, QFile::ReadOwner);
  FileNuovo file(destinazione_);
  file.Copia(master);
  EXPECT_EQ(Byte(file.Percorso()), "master");
  EXPECT_TRUE(QFile::permissions(file.Percorso()) & QFile::WriteOwner);
  EXPECT_EQ(NumeroErrore([&] { file.Copia(cartella_.Mdb("assente.mdb")); }), 53);
}

TEST_F(NuovoFile, NeedsAFolderAndANameThatIsNoFolder) {
  EXPECT_EQ(NumeroErrore([&] { FileNuovo(cartella_.Percorso() + "/nessuna/A01.MDB"); }), 76);
  EXPECT_EQ(NumeroErrore([&] { FileNuovo(cartella_.Percorso() + "/mdb"); }), 75);
}

}  // namespace
}  // namespace torvi
