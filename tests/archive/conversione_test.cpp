#include "archive/conversione.h"

#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QJsonArray>
#include <QTemporaryDir>
#include <csignal>
#include <filesystem>

#include "archive/database.h"
#include "archive/dati_jet.h"
#include "archive/errore.h"
#include "archive/jet.h"
#include "archive/per_nome.h"
#include "archive/schema.h"
#include "archive/travaso_jet.h"
#include "comune/file_limitati.h"

namespace torvi {
namespace {

using namespace prova;

// A folder of its own with a copy of a genuine file, "archivio.mdb".
class Conversione : public testing::Test {
 protected:
  void Copia(const char* mdb) {
    originale_ = Byte(CartellaJet().filePath(mdb));
    ScriviByte(vecchio_, originale_);
  }
  [[nodiscard]] QString Nella(const char* nome) const { return cartella_.filePath(nome); }
  [[nodiscard]] std::string File() const {
    const QDir cartella(cartella_.path());
    return cartella.entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u' ').toStdString();
  }
  // What fails says so with `numero` and the file's name, and leaves the folder as it was.
  void Fallisce(int numero, const QString& nominato, const std::function<void()>& lavoro) const {
    const std::string prima = File();
    const QString errore = ErroreDi(lavoro);
    EXPECT_TRUE(errore.startsWith(QString::number(numero) + ' ') && errore.contains(nominato))
        << errore.toStdString();
    EXPECT_EQ(File(), prima);
    EXPECT_TRUE(Byte(vecchio_) == originale_);
  }

  QTemporaryDir cartella_;
  QString vecchio_ = Nella("archivio.mdb");
  QString conservato_ = Nella("archivio.mdb.jet");
  QString nuovo_ = Nella("nuovo.mdb");
  QByteArray originale_;
};

Righe RigheDi(const Database& archivio, const QString& tabella) {
  Righe righe;
  const QStringList colonne = archivio.Colonne(tabella);
  Recordset recordset = archivio.OpenRecordset(tabella);
  for (; !recordset.Eof(); recordset.MoveNext()) {
    std::vector<Campo> riga;
    for (const QString& colonna : colonne) {
      riga.push_back(recordset.Fields(colonna.toStdString()));
    }
    righe.push_back(Mostra(riga));
  }
  return righe;
}

void ConfrontaTutto(const Database& archivio, const QString& mdb) {
  const QJsonObject tabelle = Atteso(mdb, ".json");
  EXPECT_EQ(archivio.Tabelle().size(), tabelle.size());
  for (const QString& tabella : archivio.Tabelle()) {
    SCOPED_TRACE(qPrintable(tabella));
    EXPECT_EQ(RigheDi(archivio, tabella),
              RigheAttese(archivio.Colonne(tabella), tabelle[tabella].toArray()));
  }
}

// A key on the counter alone has no index of its own, and is unique by itself.
bool Unico(const Database& archivio, const QString& tabella, const Indice& indice) {
  const Recordset trovato = archivio.OpenRecordset("select sql from sqlite_master where name = ?",
                                                   {NomeIndice(tabella, indice.nome)});
  return trovato.Eof() || trovato.Fields("sql").Testo().startsWith("CREATE UNIQUE");
}

TEST_F(Conversione, EveryRowOfEveryFileArrives) {
  for (const QString& mdb : FileJet()) {
    SCOPED_TRACE(qPrintable(mdb));
    QFile::remove(nuovo_);
    ConvertiJet(CartellaJet().filePath(mdb), nuovo_);
    ConfrontaTutto(OpenDatabase(nuovo_), mdb);
    // The same without a conversion.
    ConfrontaTutto(OpenDatabase(CartellaJet().filePath(mdb)), mdb);
  }
  EXPECT_EQ(File(), "nuovo.mdb");
}

TEST_F(Conversione, CountersGoOnWhereTheyStood) {
  ConvertiJet(CartellaJet().filePath("consegna.mdb"), nuovo_);
  const Database archivio = OpenDatabase(nuovo_);
  const QJsonObject schema = Atteso("consegna.mdb", ".schema.json");
  int contatori = 0;
  for (const Tabella& tabella : SchemaArchivio()) {
    const Colonna& prima = tabella.colonne.front();
    if (prima.tipo != TipoColonna::Contatore) continue;
    ++contatori;
    SCOPED_TRACE(qPrintable(tabella.nome));
    Recordset righe = archivio.OpenRecordset(tabella.nome);
    righe.AddNew();
    righe.Update();
    righe.Bookmark(righe.LastModified());
    EXPECT_EQ(righe.Fields(prima.nome.toStdString()).Intero(),
              schema[tabella.nome].toObject()["lastCounter"].toInt() + 1);
  }
  EXPECT_GT(contatori, 20);
}

TEST_F(Conversione, IndexesAndDefaultsOfBothSchemasAreThere) {
  const QString consegna = CartellaJet().filePath("consegna.mdb");
  ConvertiJet(consegna, nuovo_);
  const Database archivio = OpenDatabase(nuovo_);
  const LettoreJet lettore(consegna);
  std::vector<Tabella> tabelle = SchemaArchivio();
  tabelle.insert(tabelle.end(), lettore.Tabelle().begin(), lettore.Tabelle().end());
  for (Tabella tabella : SchemaArchivio()) {
    tabella.indici.clear();
    // What the file did not keep apart is not refused.
    for (const Indice& indice : Completata(tabella).indici) EXPECT_FALSE(indice.unico);
  }
  for (const Tabella& tabella : tabelle) {
    Recordset righe = archivio.OpenRecordset(tabella.nome);
    const Tabella* nelFile = PerNome(lettore.Tabelle(), tabella.nome);
    for (const Indice& indice : tabella.indici) {
      const Indice* suo = nelFile == nullptr ? nullptr : PerNome(nelFile->indici, indice.nome);
      EXPECT_EQ(Unico(archivio, tabella.nome, indice), suo != nullptr && suo->unico);
      EXPECT_NO_THROW(righe.Index(indice.nome.toStdString()))
          << qPrintable(tabella.nome + u'.' + indice.nome);
    }
    righe.AddNew();
    righe.Update();
    righe.Bookmark(righe.LastModified());
    for (const Colonna& colonna : tabella.colonne) {
      if (colonna.predefinito.isEmpty()) continue;
      EXPECT_EQ(righe.Fields(colonna.nome.toStdString()), Campo(colonna.predefinito.toInt()))
          << qPrintable(tabella.nome + u'.' + colonna.nome);
    }
  }
}

TEST_F(Conversione, InPlaceTheOriginalStaysBesideTheArchive) {
  Copia("consegna.mdb");
  QFile::setPermissions(vecchio_, QFile::ReadOwner | QFile::WriteOwner);
  int fatte = -1;
  QString ultima;
  ConvertiInLoco(vecchio_, [&](const QString& cosa, int fatto, int totale) {
    EXPECT_GE(fatto, fatte);
    EXPECT_LE(fatto, totale);
    fatte = fatto;
    ultima = cosa;
  });
  EXPECT_GT(fatte, 0);
  EXPECT_EQ(ultima, "Verifica di TabInfo");
  EXPECT_EQ(File(), "archivio.mdb archivio.mdb.jet");
  EXPECT_TRUE(Byte(conservato_) == originale_);
  EXPECT_EQ(QFile::permissions(vecchio_) & QFile::ReadOther, QFile::Permissions());
  ConfrontaTutto(OpenDatabase(vecchio_), "consegna.mdb");
}

TEST_F(Conversione, GoesOnAfterOneThatWasCutShortBetweenTheTwoNames) {
  Copia("righe spostate.mdb");
  std::filesystem::create_hard_link(vecchio_.toStdString(), conservato_.toStdString());
  ConvertiInLoco(vecchio_);
  EXPECT_EQ(File(), "archivio.mdb archivio.mdb.jet");
  EXPECT_TRUE(Byte(conservato_) == originale_);
  ConfrontaTutto(OpenDatabase(vecchio_), "righe spostate.mdb");
}

TEST_F(Conversione, ThroughALinkTheFileItselfIsConverted) {
  Copia("righe spostate.mdb");
  ASSERT_TRUE(QFile::link(vecchio_, Nella("collegato.mdb")));
  ConvertiInLoco(Nella("collegato.mdb"));
  EXPECT_EQ(File(), "archivio.mdb archivio.mdb.jet collegato.mdb");
  EXPECT_FALSE(EFileJet(vecchio_));
}

TEST_F(Conversione, WhatCannotBeConvertedStaysAsItIs) {
  const auto inLoco = [this] { ConvertiInLoco(vecchio_); };
  const auto altrove = [this] { ConvertiJet(vecchio_, nuovo_); };
  Copia("righe spostate.mdb");
  const QByteArray intero = originale_;

  ScriviByte(conservato_, QByteArray("altro"));
  Fallisce(75, QStringLiteral("Esiste già ") + conservato_, inLoco);
  EXPECT_TRUE(Byte(conservato_) == QByteArray("altro"));
  QFile::remove(conservato_);

  ScriviByte(nuovo_, QByteArray("altro"));
  Fallisce(75, nuovo_ + " esiste già", altrove);
  EXPECT_TRUE(Byte(nuovo_) == QByteArray("altro"));
  QFile::remove(nuovo_);

  Fallisce(76, Nella("manca"), [this] { ConvertiJet(vecchio_, Nella("manca/nuovo.mdb")); });
  Fallisce(3024, Nella("manca.mdb"), [this] { ConvertiJet(Nella("manca.mdb"), nuovo_); });
  Fallisce(3024, Nella("manca.mdb"), [this] { ConvertiInLoco(Nella("manca.mdb")); });

  QByteArray jet3 = intero;
  jet3[0x14] = 0;
  for (const QByteArray& guasto :
       {QByteArray(), QByteArray("SQLite format 3"), intero.first(100000), intero.first(98304),
        QByteArray(intero).replace(8192, 4096, QByteArray(4096, '\0')), jet3}) {
    SCOPED_TRACE(guasto.size());
    originale_ = guasto;
    ScriviByte(vecchio_, guasto);
    Fallisce(3343, vecchio_, inLoco);
    Fallisce(3343, vecchio_, altrove);
  }
}

// A difference made behind its back is what the comparison is there for.
TEST_F(Conversione, AFileThatDoesNotCompareEqualIsNotDelivered) {
  Copia("consegna.mdb");
  const auto esegui = [](const char* istruzione) {
    return [istruzione](const Database& archivio) {
      EXPECT_GT(archivio.Execute(istruzione), 0) << istruzione;
    };
  };
  const auto aggiungi = [](const char* tabella) {
    return [tabella](const Database& archivio) {
      Recordset righe = archivio.OpenRecordset(tabella);
      righe.AddNew();
      righe.Update();
    };
  };
  const std::vector<std::function<void(const Database&)>> danni = {
      esegui("update TabTesto set testo = \"altro\" where IDTesto = 3"),
      esegui("update TabFonte set comma = \"\" where comma is null"),
      esegui("update TabFonte set IDRegione = 0 where IDRegione is null"),
      esegui("delete * from LegameDocFonte where IDDoc = 1"),
      esegui("update sqlite_sequence set seq = 25 where name = \"TabDocumento\""),
      aggiungi("LegameDocFonte"),
      aggiungi("TabDocumento"),
  };
  for (std::size_t i = 0; i < danni.size(); ++i) {
    SCOPED_TRACE(i);
    bool fatto = false;
    Fallisce(51, vecchio_, [&] {
      ConvertiInLoco(vecchio_, [&](const QString& cosa, int, int) {
        if (fatto || !cosa.startsWith("Verifica")) return;
        fatto = true;
        const QStringList provvisori = QDir(cartella_.path()).entryList({"archivio.mdb.*"});
        ASSERT_EQ(provvisori.size(), 1);
        danni[i](OpenDatabase(cartella_.filePath(provvisori.front())));
      });
    });
    EXPECT_TRUE(fatto);
  }
}

TEST_F(Conversione, ADeviceThatFailsOnTheWayLeavesNothing) {
  Copia("consegna.mdb");
  for (const rlim_t limite : {0, 1000, 20000, 200000}) {
    SCOPED_TRACE(limite);
    const FileLimitati limitati(limite);
    Fallisce(57, vecchio_, [this] { ConvertiInLoco(vecchio_); });
    Fallisce(57, vecchio_, [this] { ConvertiJet(vecchio_, nuovo_); });
  }
}

TEST_F(Conversione, AFullDiskLeavesNothing) {
  Copia("consegna.mdb");
  const QByteArray disco = Nella("disco").toUtf8();
  ASSERT_TRUE(QDir().mkdir(Nella("disco")));
  if (mount("tmpfs", disco.constData(), "tmpfs", 0, "size=128k") != 0) {
    GTEST_SKIP() << "no right to mount a small disk";
  }
  Fallisce(61, "Disco pieno: " + Nella("disco/nuovo.mdb") + " Liberare spazio",
           [this] { ConvertiJet(vecchio_, Nella("disco/nuovo.mdb")); });
  EXPECT_TRUE(QDir(Nella("disco")).isEmpty());
  EXPECT_EQ(umount(disco.constData()), 0);
}

// Killed anywhere, the file is the old one or the new one, and the next conversion does its work.
TEST_F(Conversione, AKillLosesNothing) {
  for (const int avvisi : {1, 20, 40, 60, 80}) {
    SCOPED_TRACE(avvisi);
    Copia("consegna.mdb");
    const pid_t figlio = fork();
    if (figlio == 0) {
      int visti = 0;
      ConvertiInLoco(vecchio_, [&](const QString&, int, int) {
        if (++visti == avvisi) (void)std::raise(SIGKILL);
      });
      _exit(0);
    }
    int esito = 0;
    ASSERT_EQ(waitpid(figlio, &esito, 0), figlio);
    ASSERT_TRUE(WIFSIGNALED(esito));
    EXPECT_TRUE(Byte(vecchio_) == originale_);
    ConvertiInLoco(vecchio_);
    ConfrontaTutto(OpenDatabase(vecchio_), "consegna.mdb");
    EXPECT_EQ(File(), "archivio.mdb archivio.mdb.jet");
    ASSERT_TRUE(QFile::remove(conservato_));
  }
}

}  // namespace
}  // namespace torvi
