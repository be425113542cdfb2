#include "export/file_testo.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"
#include "comune/file_limitati.h"

namespace torvi {
namespace {

TEST(FileTesto, ReadsLinesWhateverTheirEnd) {
  struct Caso {
    const char* byte;
    QStringList righe;
  };
  const Caso kCasi[] = {
      {"", {}},
      {"a", {"a"}},
      {"a\r\n", {"a"}},
      {"a\r\n\r\nb\nc\rd", {"a", "", "b", "c", "d"}},
      {"\n\r\n\r", {"", "", ""}},
      {"citt\xe0 \x80", {"città €"}},
  };
  const CartellaDiProva cartella;
  for (const Caso& caso : kCasi) {
    ScriviByte(cartella.Dump("prova"), caso.byte);
    FileTesto file(cartella.Dump("PROVA"), Apertura::Lettura);
    QStringList righe;
    while (const auto riga = file.LineInput()) righe += *riga;
    EXPECT_EQ(righe, caso.righe) << caso.byte;
  }
}

TEST(FileTesto, ReadsLinesThatCrossItsBuffer) {
  const CartellaDiProva cartella;
  const QByteArray lunga(64 * 1024 - 1, 'x');
  ScriviByte(cartella.Dump("prova"), lunga + "\r\n" + lunga + lunga + "\r\nfine");
  FileTesto file(cartella.Dump("prova"), Apertura::Lettura);
  EXPECT_EQ(file.LineInput()->size(), lunga.size());
  EXPECT_EQ(file.LineInput()->size(), 2 * lunga.size());
  EXPECT_EQ(file.LineInput().value(), "fine");
  EXPECT_FALSE(file.LineInput().has_value());
}

TEST(FileTesto, WritesAnewOrBehindWhatIsThere) {
  const CartellaDiProva cartella;
  ScriviByte(cartella.Dump("errori.A01"), "vecchio\r\n");
  FileTesto(cartella.Dump("ERRORI.A01"), Apertura::Aggiunta).Print("più €");
  EXPECT_EQ(Byte(cartella.Dump("errori.A01")), "vecchio\r\npi\xf9 \x80\r\n");
  FileTesto(cartella.Dump("errori.A01"), Apertura::Scrittura).Print({});
  EXPECT_EQ(Byte(cartella.Dump("errori.A01")), "\r\n");
}

TEST(FileTesto, AnOpenThatFailsTellsWhy) {
  const CartellaDiProva cartella;
  struct Caso {
    QString percorso;
    Apertura apertura;
    int errore;
  };
  const Caso kCasi[] = {
      {cartella.Dump("manca"), Apertura::Lettura, 53},
      {cartella.Dump("manca/prova"), Apertura::Lettura, 76},
      {cartella.Dump("manca/prova"), Apertura::Scrittura, 76},
      {cartella.Dump("manca/prova"), Apertura::Aggiunta, 76},
      {cartella.Percorso() + "/dump", Apertura::Lettura, 75},
      {cartella.Percorso() + "/dump", Apertura::Scrittura, 75},
      {{}, Apertura::Lettura, 75},
      {{}, Apertura::Aggiunta, 75},
  };
  for (const Caso& caso : kCasi) {
    EXPECT_EQ(NumeroErrore([&] { FileTesto(caso.percorso, caso.apertura).Close(); }), caso.errore)
        << caso.percorso.toStdString() << ' ' << static_cast<int>(caso.apertura);
  }
  EXPECT_TRUE(QDir(cartella.Percorso() + "/dump").isEmpty());
}

TEST(FileTesto, AFullDeviceIsToldAtTheLatestByClose) {
  FileTesto file("/dev/full", Apertura::Aggiunta);
  file.Print("x");
  EXPECT_EQ(NumeroErrore([&] { file.Close(); }), 61);
  file.Close();
}

TEST(FileTesto, ADeviceThatFailsInTheMiddleLeavesWholeBlocks) {
  const CartellaDiProva cartella;
  const QString percorso = cartella.Dump("lexxdump isis.A01");
  for (const rlim_t quanti : {1000, 907}) {  // in a block, and at the end of one
    ScriviByte(percorso, "prima\r\n");
    FileTesto file(percorso, Apertura::Aggiunta);
    file.ScriviBlocco(QByteArray(600, 'a'));
    file.Svuota();
    file.ScriviBlocco(QByteArray(300, 'b'));
    file.ScriviBlocco(QByteArray(300, 'c'));
    const FileLimitati limitati(quanti);
    EXPECT_EQ(NumeroErrore([&] { file.Svuota(); }), 57);
    EXPECT_EQ(Byte(percorso), "prima\r\n" + QByteArray(600, 'a') + QByteArray(300, 'b'));
  }
}

TEST(FileTesto, ANewFileTakesItsPlaceWhenClosedAndKeepsItsWholeBlocks) {
  const CartellaDiProva cartella;
  const QString percorso = cartella.Dump("note.A01");
  ScriviByte(percorso, "prima\r\n");
  QFile::setPermissions(percorso, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
  ASSERT_TRUE(QFile::link(percorso, cartella.Dump("legame")));
  {
    FileTesto file(cartella.Dump("legame"), Apertura::Scrittura);
    EXPECT_EQ(file.Percorso(), cartella.Dump("legame"));
    file.ScriviBlocco(QByteArray(600, 'a'));
    file.Svuota();
    EXPECT_EQ(Byte(percorso), "prima\r\n");
    file.ScriviBlocco(QByteArray(600, 'b'));
    const FileLimitati limitati(1000);
    EXPECT_EQ(ErroreDi([&] { file.Close(); }).section(": ", 1), cartella.Dump("legame"));
  }
  EXPECT_EQ(Byte(percorso), QByteArray(600, 'a'));
  EXPECT_TRUE(QFileInfo(cartella.Dump("legame")).isSymLink());
  EXPECT_TRUE(QFile::permissions(percorso).testFlag(QFile::ReadGroup));
}

TEST(FileTesto, TwoThatAddToOneFileAreNotTornTogether) {
  const CartellaDiProva cartella;
  FileTesto primo(cartella.Dump("note.A01"), Apertura::Aggiunta);
  EXPECT_EQ(ErroreDi([&] { FileTesto(cartella.Dump("NOTE.a01"), Apertura::Aggiunta).Close(); }),
            "55 Un altro programma sta scrivendo " + cartella.Dump("note.A01") +
                ": attendere che finisca e ripetere");
  FileTesto(cartella.Dump("nuovi.A01"), Apertura::Aggiunta).Print("altro");
  primo.Print("primo");
  primo.Close();
  FileTesto(cartella.Dump("note.A01"), Apertura::Aggiunta).Print("secondo");
  EXPECT_EQ(Byte(cartella.Dump("note.A01")), "primo\r\nsecondo\r\n");
  EXPECT_EQ(QDir(cartella.Percorso() + "/dump").entryList(QDir::Files | QDir::Hidden).size(), 2);
}

}  // namespace
}  // namespace torvi
