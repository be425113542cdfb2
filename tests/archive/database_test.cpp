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

TEST(DatabaseTest, InUnArchivioToltoOSostituitoNonSiScriveENienteVaPerso) {
  for (const bool sostituito : {false, true}) {
    const CartellaDiProva cartella;
    const Database mia = cartella.NuovaConsegna();
    const QByteArray prima = Byte(mia.Name());
    if (sostituito) ScriviByte(cartella.Mdb("copia"), prima);
    ASSERT_TRUE(QFile::remove(mia.Name()));
    if (sostituito) QFile::rename(cartella.Mdb("copia"), mia.Name());
    const QString atteso = "3024 Il file " + mia.Name() +
                           " è stato tolto o sostituito mentre era aperto: non vi è stato scritto "
                           "niente. Chiudere l'archivio e riaprirlo.";
    EXPECT_EQ(atteso, ErroreDi([&] { AggiungiTesto(mia, "x"); })) << sostituito;
    EXPECT_EQ(atteso, ErroreDi([&] {
                const UnitaDiScrittura unita(mia);
                AggiungiTesto(mia, "x");
              }))
        << sostituito;
    EXPECT_EQ(sostituito, QFile::exists(mia.Name()));
    EXPECT_TRUE(!sostituito || Byte(mia.Name()) == prima);
  }
}

TEST(DatabaseTest, UnaConclusioneFallitaLasciaScrivereDopo) {
  const CartellaDiProva cartella;
  const Database mia = cartella.NuovaConsegna();
  for (const char* testo : {"a", "b"}) AggiungiTesto(mia, testo);
  const Database altra = OpenDatabase(mia.Name(), Accesso::SolaLettura);
  Recordset legge = altra.OpenRecordset("select * from TabTesto");
  UnitaDiScrittura unita(mia);
  AggiungiTesto(mia, "persa");
  EXPECT_EQ(3260, NumeroErrore([&] { unita.Concludi(); }));
  legge.Close();
  EXPECT_EQ(2, Quante(mia));
  UnitaDiScrittura nuova(mia);
  AggiungiTesto(mia, "c");
  nuova.Concludi();
  EXPECT_EQ(3, Quante(altra));
}

TEST(DatabaseTest, TantiTestiDiversiNonToccanoLeIstruzioniInUso) {
  const CartellaDiProva cartella;
  const Database mia = cartella.NuovaConsegna();
  for (int i = 0; i < 3; ++i) AggiungiTesto(mia, QString::number(i));
  const QString istruzione = "select testo from TabTesto";
  Recordset inUso = mia.OpenRecordset(istruzione);
  for (int giro = 0; giro < 2; ++giro) {
    for (int i = 0; i < 700; ++i) {
      EXPECT_EQ(i, mia.OpenRecordset(QStringLiteral("select %1 as n from TabInfo").arg(i))
                       .Fields("n")
                       .Intero());
    }
    EXPECT_EQ(QString::number(giro), inUso.Fields("testo").Testo());
    inUso.MoveNext();
    EXPECT_EQ("0", mia.OpenRecordset(istruzione).Fields("testo").Testo());
  }
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
  const QByteArray mezzo = Byte(percorso);
  const QByteArray diario = Byte(percorso + "-journal");
  ASSERT_FALSE(diario.isEmpty());
  const QString legame = cartella.Mdb("legame.mdb");
  ASSERT_TRUE(QFile::link(percorso, legame));
  for (const QString& nome : {percorso, legame}) {
    for (const Accesso accesso : {Accesso::LetturaScrittura, Accesso::SolaLettura}) {
      ScriviByte(percorso, mezzo);
      ScriviByte(percorso + "-journal", diario);
      EXPECT_EQ("", ErroreDi([&] { EXPECT_EQ(1, Quante(OpenDatabase(nome, accesso))); }))
          << nome.toStdString();
      EXPECT_FALSE(QFile::exists(percorso + "-journal"));
    }
  }
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
