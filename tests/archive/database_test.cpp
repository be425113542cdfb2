#include "archive/database.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "comune/cartella_di_prova.h"
#include "comune/file_limitati.h"

namespace torvi {
namespace {

int Quante(const Database& db) {
  return static_cast<int>(
      db.OpenRecordset("select count(IDTesto) as n from TabTesto").Fields("n").Intero());
}

void AggiungiTesto(const Database& db, const QString& testo) {
  Aggiungi(db, "TabTesto", {{"testo", testo}});
}

TEST(DatabaseTest, CioCheNonSiApreHaIlSuoNumeroENomeERestaComEra) {
  const CartellaDiProva cartella;
  ScriviByte(cartella.Mdb("vuoto.mdb"), {});
  ScriviByte(cartella.Mdb("parole.mdb"), "non sono un archivio, sono parole");
  ScriviByte(cartella.Mdb("mozzo.mdb"), QByteArray("SQLite format 3\0", 16) + "troncato");
  QDir(cartella.Percorso()).mkpath("mdb/cartella.mdb");
  const struct {
    int numero;
    const char* nome;
  } casi[] = {{3024, "manca.mdb"},
              {3343, "vuoto.mdb"},
              {3343, "parole.mdb"},
              {3343, "mozzo.mdb"},
              {3343, "cartella.mdb"}};
  for (const auto& caso : casi) {
    const QString percorso = cartella.Mdb(caso.nome);
    const QFileInfo prima(percorso);
    const qint64 lunga = prima.size();
    const QString errore = ErroreDi([&] { (void)OpenDatabase(percorso); });
    EXPECT_TRUE(errore.startsWith(QString::number(caso.numero) + ' ') && errore.contains(percorso))
        << errore.toStdString();
    EXPECT_EQ(lunga, QFileInfo(percorso).size()) << caso.nome;
  }
  EXPECT_FALSE(QFile::exists(cartella.Mdb("manca.mdb")));
}

TEST(DatabaseTest, UnArchivioBloccatoDaUnAltroDiceInUso) {
  const CartellaDiProva cartella;
  Database mia = cartella.NuovaConsegna();
  const Database altra = OpenDatabase(mia.Name());
  const UnitaDiScrittura blocco(mia);
  EXPECT_EQ(3260, NumeroErrore([&] { AggiungiTesto(altra, "x"); }));
  EXPECT_EQ(0, Quante(altra));
}

TEST(DatabaseTest, InSolaLetturaSiLeggeENonSiScrive) {
  const CartellaDiProva cartella;
  Database mia = cartella.NuovaConsegna();
  AggiungiTesto(mia, "x");
  const Database sola = OpenDatabase(mia.Name(), Accesso::SolaLettura);
  EXPECT_EQ(1, Quante(sola));
  EXPECT_EQ("3027 Impossibile aggiornare: il database è di sola lettura: " + mia.Name(),
            ErroreDi([&] { AggiungiTesto(sola, "y"); }));
  EXPECT_EQ(3027, NumeroErrore([&] { const UnitaDiScrittura unita(sola); }));
}

TEST(DatabaseTest, UnArchivioToltoDiMezzoSiDiceChiaramente) {
  const CartellaDiProva cartella;
  const Database mia = cartella.NuovaConsegna();
  ASSERT_TRUE(QFile::remove(mia.Name()));
  EXPECT_EQ(3024, NumeroErrore([&] { AggiungiTesto(mia, "x"); }));
}

TEST(DatabaseTest, UnUnitaLasciataPerUnErroreTieneIPassiFatti) {
  const CartellaDiProva cartella;
  const Database mia = cartella.NuovaConsegna();
  const int numero = NumeroErrore([&] {
    const UnitaDiScrittura esterna(mia);
    AggiungiTesto(mia, "prima");
    const UnitaDiScrittura interna(mia);
    mia.Execute("delete * from TabNessuna");
  });
  EXPECT_EQ(3078, numero);
  EXPECT_EQ(1, Quante(OpenDatabase(mia.Name())));
}

TEST(DatabaseTest, UnaMorteAMezzaUnitaLasciaLoStatoDiPrima) {
  const CartellaDiProva cartella;
  QString percorso;
  {
    Database mia = cartella.NuovaConsegna();
    percorso = mia.Name();
    AggiungiTesto(mia, "prima");
    mia.Close();
  }
  const pid_t figlio = fork();
  if (figlio == 0) {
    const Database mia = OpenDatabase(percorso);
    const UnitaDiScrittura unita(mia);
    // Enough to spill from the engine's cache into the file before the end.
    for (int i = 0; i < 400; ++i) AggiungiTesto(mia, QString(100000, 'x'));
    (void)raise(SIGKILL);
  }
  int stato = 0;
  ASSERT_EQ(figlio, waitpid(figlio, &stato, 0));
  ASSERT_TRUE(WIFSIGNALED(stato));
  EXPECT_EQ(1, Quante(OpenDatabase(percorso)));
}

TEST(DatabaseTest, UnDiscoPienoELErrore61ELArchivioRestaBuono) {
  const CartellaDiProva cartella;
  Database mia = cartella.NuovaConsegna();
  AggiungiTesto(mia, "prima");
  int numero = 0;
  {
    const FileLimitati limitati(QFileInfo(mia.Name()).size() + 4096);
    numero = NumeroErrore([&] { AggiungiTesto(mia, QString(1000000, 'x')); });
  }
  // The limit answers as a failing device or as a full one, by the file system.
  EXPECT_TRUE(numero == 61 || numero == 57) << numero;
  EXPECT_EQ(1, Quante(mia));
  AggiungiTesto(mia, "dopo");
  EXPECT_EQ(2, Quante(mia));
}

TEST(DatabaseTest, UnFileJetSiLeggeEDiceDiNonPotersiScrivere) {
  const QString genuino = FileGenuino("catalogo norme.mdb");
  const Database catalogo = OpenDatabase(genuino);
  EXPECT_EQ(36,
            catalogo.OpenRecordset("select count(id) as n from tabCatalogo").Fields("n").Intero());
  Recordset righe = catalogo.OpenRecordset("tabCatalogo");
  righe.Index("PD");
  righe.Seek("pd00106");
  EXPECT_EQ("2359", righe.Fields("numero").Testo());
  EXPECT_EQ(3027, NumeroErrore([&] { catalogo.Execute("delete * from PD"); }));
}

TEST(LetteraleTest, RaddoppiaLeVirgolette) {
  EXPECT_EQ("\"detto \"\"fatto\"\"\"", Letterale("detto \"fatto\""));
}

}  // namespace
}  // namespace torvi
