#include "archive/file_nuovo.h"

#include <gtest/gtest.h>
#include <sys/mount.h>

#include <QDir>
#include <QFile>
#include <filesystem>

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
    EXPECT_EQ(Byte(file.Percorso()), "");
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

// A kill leaves the file unlocked; who is still at work holds his own.
TEST_F(NuovoFile, WhatAKillLeftGoesAndWhatIsBeingMadeStays) {
  const QString di = destinazione_ + ".1-0.parziale";
  const QString altra = cartella_.Mdb("B01.MDB.1-0.parziale");
  const auto lascia = [&] {
    for (const QString& nome : QStringList{di, di + "-journal", altra}) ScriviByte(nome, "mezzo");
  };
  lascia();
  ScriviByte(cartella_.Mdb("sigle.2001-1"), "A01");
  ScriviByte(cartella_.Mdb("mio.parziale"), "altro");
  const FileNuovo vivo(destinazione_);
  EXPECT_FALSE(QFile::exists(di) || QFile::exists(di + "-journal"));
  EXPECT_TRUE(QFile::exists(altra));
  lascia();
  TogliFileLasciati(cartella_.Percorso() + "/mdb");
  const FileNuovo secondo(destinazione_);
  EXPECT_EQ(Presenti(), (QStringList{QFileInfo(vivo.Percorso()).fileName(),
                                     QFileInfo(secondo.Percorso()).fileName(), "mio.parziale",
                                     "sigle.2001-1"}));
}

TEST_F(NuovoFile, KeepsWhatItReplacesUnderAFreeName) {
  const QString link = cartella_.Percorso() + "/collegato.mdb";
  ASSERT_TRUE(QFile::link(destinazione_, link));
  QStringList conservati;
  for (const char* byte : {"primo", "secondo", "terzo"}) {
    FileNuovo file(link);
    file.ScriviByte(byte);
    conservati += file.SostituisciConservando(destinazione_);
  }
  const QString nome = destinazione_ + ".precedente";
  EXPECT_EQ(conservati, (QStringList{"", nome, nome + "-2"}));
  EXPECT_EQ(Byte(nome) + Byte(nome + "-2") + Byte(destinazione_), "primosecondoterzo");
  EXPECT_TRUE(QFileInfo(link).isSymLink());
  EXPECT_EQ(Presenti().size(), 3);
  // Cut off between the two names: the next run goes on with the one that is there.
  std::filesystem::create_hard_link(destinazione_.toStdString(),
                                    QString(nome + "-3").toStdString());
  FileNuovo file(destinazione_);
  EXPECT_EQ(file.SostituisciConservando(destinazione_), nome + "-3");
}

TEST_F(NuovoFile, AFailureNamesThePlaceAndAFullDiskIsCalledFull) {
  const FileNuovo file(destinazione_);
  EXPECT_EQ(ErroreDi([&] {
              file.Riempi([&] { throw ErroreEsecuzione(Errore::SolaLettura, file.Percorso()); });
            }),
            "3027 Impossibile aggiornare: il database è di sola lettura: " + destinazione_);
  const QString disco = cartella_.Percorso() + "/disco";
  ASSERT_TRUE(QDir().mkdir(disco));
  if (mount("tmpfs", disco.toUtf8().constData(), "tmpfs", 0, "size=8k") != 0) {
    GTEST_SKIP() << "no right to mount a small disk";
  }
  const QString pieno = "61 Disco pieno: " + disco + "/A.MDB";
  {
    const FileNuovo piccolo(disco + "/A.MDB");
    EXPECT_EQ(ErroreDi([&] { piccolo.ScriviByte(QByteArray(10000, 'x')); }), pieno);
    EXPECT_EQ(ErroreDi([&] {
                piccolo.Riempi([] { throw ErroreEsecuzione(Errore::PermessoNegato, "diario"); });
              }),
              pieno);
  }
  EXPECT_TRUE(QDir(disco).isEmpty());
  EXPECT_EQ(umount(disco.toUtf8().constData()), 0);
}

TEST_F(NuovoFile, NeedsAFolderAndAPossibleName) {
  const auto errore = [&](const QString& nome) {
    return ErroreDi([&] { FileNuovo(cartella_.Percorso() + nome).Consegna(); });
  };
  EXPECT_TRUE(errore("/nessuna/A01.MDB").startsWith("76 "));
  EXPECT_EQ(errore("/mdb"),
            "75 " + cartella_.Percorso() + "/mdb è una cartella: scrivere il nome di un file.");
  EXPECT_EQ(errore("/mdb/" + QString(127, u'è')), "");
  EXPECT_EQ(errore("/mdb/" + QString(240, 'A')), "");
  EXPECT_TRUE(errore("/mdb/" + QString(256, 'A')).startsWith("75 Il nome del file è troppo lungo"));
  EXPECT_EQ(Presenti().size(), 2);
}

}  // namespace
}  // namespace torvi
