// What cannot be worked on gets one line that names it, exit 1, and stays as it was.
#include <gtest/gtest.h>

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <functional>

#include "comune/cartella_di_prova.h"
#include "programma.h"

namespace torvi {
namespace {

class IngressiErrati : public testing::Test {
 protected:
  void SetUp() override {
    archivio_ = cartella_.Mdb("A01.MDB");
    cartella_.NuovaConsegna("A01.MDB").Close();
  }
  [[nodiscard]] EsitoProgramma Esporta(const QStringList& davanti = {}) const {
    return Torvi({"--cartella", cartella_.Percorso(), "esporta", "isis", archivio_}, davanti);
  }
  static void Fallito(const EsitoProgramma& esito, int numero, const QString& nome) {
    EXPECT_EQ(esito.codice, 1) << esito.errori.toStdString();
    EXPECT_TRUE(esito.errori.startsWith(QStringLiteral("Errore di run-time '%1': ").arg(numero)))
        << esito.errori.toStdString();
    EXPECT_TRUE(esito.errori.contains(nome)) << esito.errori.toStdString();
  }
  // Exit 1 and one line with the number and the name; nothing in mdb/ changes.
  void FallisceCon(int numero, const QString& nome, const QStringList& davanti = {}) const {
    const auto prima = Cartella();
    const EsitoProgramma esito = Esporta(davanti);
    Fallito(esito, numero, nome);
    EXPECT_EQ(esito.errori.count(u'\n'), 1) << esito.errori.toStdString();
    EXPECT_EQ(Cartella(), prima);
  }
  // The files of mdb/ with their bytes.
  [[nodiscard]] QMap<QString, QByteArray> Cartella() const {
    QMap<QString, QByteArray> file;
    for (const QString& nome : QDir(cartella_.Percorso() + "/mdb").entryList(QDir::Files)) {
      file[nome] = Byte(cartella_.Mdb(nome));
    }
    return file;
  }

  CartellaDiProva cartella_;
  QString archivio_;
};

TEST_F(IngressiErrati, AFileThatIsNoArchive) {
  QByteArray jet("\0\1\0\0Standard Jet DB\0\1\0\0\0", 24);
  jet.append(QByteArray(6000, '\0'));
  for (const auto& [cosa, byte] : {std::pair{"empty", QByteArray()},
                                   {"text", "Non sono un archivio.\n"},
                                   {"only a header", QByteArray("SQLite format 3\0", 16)},
                                   {"a Jet file of which little is left", jet}}) {
    SCOPED_TRACE(cosa);
    ScriviByte(archivio_, byte);
    FallisceCon(3343, archivio_);
  }
}

TEST_F(IngressiErrati, ADamagedGenuineFile) {
  const QString genuino = FileGenuino("consegna.mdb");
  const QByteArray intero = Byte(genuino);
  ScriviByte(archivio_, intero.left(intero.size() / 3));
  FallisceCon(3343, archivio_);
  QByteArray guasto = intero;
  // Every page from the third on loses its first bytes.
  for (qsizetype pagina = 8192; pagina < guasto.size(); pagina += 4096) {
    guasto.replace(pagina, 16, QByteArray(16, '\x7f'));
  }
  ScriviByte(archivio_, guasto);
  FallisceCon(3343, archivio_);
}

TEST_F(IngressiErrati, AForeignDatabase) {
  ScriviByte(archivio_, Byte(FileGenuino("classificazione.mdb")));
  FallisceCon(3011, archivio_);
  QFile::remove(archivio_);
  ASSERT_EQ(Torvi({"catalogo", archivio_}).codice, 0);
  FallisceCon(3011, archivio_);
}

TEST_F(IngressiErrati, AnAbsentFileOrFolder) {
  QFile::remove(archivio_);
  FallisceCon(3024, archivio_);
  archivio_ = cartella_.Percorso() + "/nessuna/A01.MDB";
  FallisceCon(3024, archivio_);
}

TEST_F(IngressiErrati, TabInfoWithoutARowOrWithTwo) {
  {
    const Database archivio = OpenDatabase(archivio_);
    Aggiungi(archivio, "TabInfo", {{"Consegna", "A02"}});
  }
  FallisceCon(3011, archivio_);
  OpenDatabase(archivio_).Execute("delete * from TabInfo");
  FallisceCon(3021, archivio_);
  Fallito(Torvi({"--cartella", cartella_.Percorso(), "errori", "fonti", archivio_}), 3021, {});
}

TEST_F(IngressiErrati, AnArchiveWithoutDocuments) { Fallito(Esporta(), 3021, {}); }

TEST_F(IngressiErrati, AnAbsentNormCatalogueEndsTheRunAtTheFirstAct) {
  QFile::remove(archivio_);
  ASSERT_EQ(Torvi({"esempio", archivio_}).codice, 0);
  Fallito(Esporta(), 3024, "/mdb/catalogo norme.mdb");
  EXPECT_TRUE(Byte(cartella_.Dump("lexxdump isis.A01")).isEmpty());
}

TEST_F(IngressiErrati, AnAbsentDumpFolder) {
  ASSERT_TRUE(QDir(cartella_.Percorso()).rmdir("dump"));
  Fallito(Esporta(), 76, cartella_.Percorso() + "/dump");
}

TEST_F(IngressiErrati, AFileThatExistsIsNotWrittenOver) {
  for (const char* comando : {"master", "catalogo", "esempio"}) {
    const QByteArray prima = Byte(archivio_);
    Fallito(Torvi({comando, archivio_}), 75, archivio_);
    EXPECT_EQ(Byte(archivio_), prima) << comando;
  }
}

TEST_F(IngressiErrati, AFileInUseByAnother) {
  if (QStandardPaths::findExecutable("sqlite3").isEmpty()) {
    GTEST_SKIP() << "no sqlite3";
  }
  QProcess altro;
  altro.start("sqlite3", {archivio_});
  altro.write("BEGIN EXCLUSIVE; SELECT 'preso';\n");
  ASSERT_TRUE(altro.waitForReadyRead(-1));
  FallisceCon(3045, archivio_);
  altro.closeWriteChannel();
  altro.waitForFinished(-1);
}

// As a user without rights; the owner of all rights is not held by permissions.
TEST_F(IngressiErrati, AFileThatCannotBeWritten) {
  const QStringList senzaDiritti =
      ::geteuid() == 0 ? QStringList{"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"}
                       : QStringList{};
  if (Torvi({"--aiuto"}, senzaDiritti).codice != 0) {
    GTEST_SKIP() << "the program is out of reach for a user without rights";
  }
  for (const char* cartella : {"", "/mdb", "/dump"}) {
    QFile::setPermissions(cartella_.Percorso() + cartella,
                          QFile::Permissions(0x5755));  // rwxr-xr-x
  }
  QFile::setPermissions(archivio_, QFile::ReadOwner | QFile::ReadOther);
  FallisceCon(3027, archivio_, senzaDiritti);
}

}  // namespace
}  // namespace torvi
