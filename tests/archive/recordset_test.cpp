#include "archive/recordset.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

class RecordsetTest : public testing::Test {
 protected:
  qint64 Rivista(const char* cper, const char* titolo) {
    return Aggiungi(db_, QStringLiteral("TabRivista"), {{"CPER", cper}, {"TitoloRivista", titolo}});
  }
  // The journal codes in the order of the moves.
  static QString Codici(Recordset& righe, bool avanti = true) {
    QStringList codici;
    while (avanti ? !righe.Eof() : !righe.Bof()) {
      codici += righe.Fields("cper").TestoOVuoto();
      avanti ? righe.MoveNext() : righe.MovePrevious();
    }
    return codici.join(' ');
  }

  CartellaDiProva cartella_;
  Database db_ = cartella_.NuovaConsegna();
};

TEST_F(RecordsetTest, SenzaRigheEAiDueEstremi) {
  for (const char* origine : {"TabRivista", "select * from TabRivista"}) {
    Recordset righe = db_.OpenRecordset(origine);
    EXPECT_TRUE(righe.Eof() && righe.Bof()) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveFirst(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveLast(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveNext(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MovePrevious(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("CPER"); })) << origine;
  }
}

TEST_F(RecordsetTest, SiMuoveAvantiEIndietroNellOrdineDeiPosti) {
  for (const char* cper : {"ZZ", "aa", "MM"}) Rivista(cper, "t");
  for (const char* origine : {"tabrivista", "select * from tabRivista"}) {
    Recordset righe = db_.OpenRecordset(origine);
    EXPECT_EQ("ZZ aa MM", Codici(righe)) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveNext(); })) << origine;
    righe.MovePrevious();
    EXPECT_EQ("MM aa ZZ", Codici(righe, false)) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MovePrevious(); })) << origine;
    righe.MoveNext();
    EXPECT_EQ("ZZ", righe.Fields("CPER").Testo()) << origine;
    righe.MoveLast();
    EXPECT_EQ("MM", righe.Fields("CPER").Testo()) << origine;
    righe.MoveFirst();
    EXPECT_EQ("ZZ", righe.Fields("CPER").Testo()) << origine;
  }
}

TEST_F(RecordsetTest, UnIndiceOrdinaIMovimentiESenzaRiguardoAlleMaiuscole) {
  for (const char* cper : {"ZZ", "aa", "MM", "AA"}) Rivista(cper, "t");
  Aggiungi(db_, QStringLiteral("TabRivista"), {{"TitoloRivista", "senza codice"}});
  Recordset righe = db_.OpenRecordset(QStringLiteral("TabRivista"));
  righe.Index("CPER");
  EXPECT_EQ(" aa AA MM ZZ", Codici(righe));
  righe.MovePrevious();
  EXPECT_EQ("ZZ MM AA aa ", Codici(righe, false));
  EXPECT_EQ(3015, NumeroErrore([&] { righe.Index("Titolo"); }));
}

TEST_F(RecordsetTest, SeekTrovaLaPrimaDelleUgualiOMancaEAllorNonCERiga) {
  Rivista("RGI", "prima");
  const qint64 doppia = Rivista("rgi", "seconda");
  Recordset righe = db_.OpenRecordset(QStringLiteral("TabRivista"));
  righe.Index("cper");
  righe.Seek("Rgi");
  ASSERT_FALSE(righe.NoMatch());
  EXPECT_EQ("prima", righe.Fields("TitoloRivista").Testo());
  righe.Seek("RG");
  EXPECT_TRUE(righe.NoMatch());
  EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("CPER"); }));
  righe.Seek(Campo());
  EXPECT_TRUE(righe.NoMatch());
  righe.Index("PrimaryKey");
  righe.Seek(QString::number(doppia));
  EXPECT_EQ("seconda", righe.Fields("TitoloRivista").Testo());
  Aggiungi(db_, QStringLiteral("TabLingua"), {{"idLingua", "07"}, {"Lingua", "sardo"}});
  Recordset lingue = db_.OpenRecordset(QStringLiteral("TabLingua"));
  lingue.Index("PrimaryKey");
  lingue.Seek("07");
  EXPECT_EQ("sardo", lingue.Fields("lingua").Testo());
}

TEST_F(RecordsetTest, AddNewLasciaLaRigaCorrenteELastModifiedLaNuova) {
  Rivista("A", "uno");
  Recordset righe = db_.OpenRecordset(QStringLiteral("TabRivista"));
  righe.AddNew();
  righe.Assegna("CPER", "B");
  EXPECT_EQ("B", righe.Fields("cper").Testo());
  EXPECT_TRUE(righe.Fields("TitoloRivista").Nullo());
  righe.Update();
  EXPECT_EQ("A", righe.Fields("CPER").Testo());
  righe.Bookmark(righe.LastModified());
  EXPECT_EQ("B", righe.Fields("CPER").Testo());
  EXPECT_EQ(2, righe.Fields("IDRivista").Intero());
  EXPECT_EQ(3020, NumeroErrore([&] { righe.Assegna("CPER", "C"); }));
  EXPECT_EQ(3020, NumeroErrore([&] { righe.Update(); }));
}

TEST_F(RecordsetTest, EditCambiaSoloCioCheSiAssegna) {
  Rivista("A", "uno");
  Rivista("B", "due");
  for (const char* origine : {"TabRivista", "select * from TabRivista where CPER = 'b'"}) {
    Recordset righe = db_.OpenRecordset(origine);
    if (righe.Fields("CPER").Testo() != "B") righe.MoveNext();
    righe.Edit();
    righe.Assegna("TitoloRivista", QStringLiteral("L'«àncora» \"x\""));
    righe.Update();
    EXPECT_EQ(QStringLiteral("L'«àncora» \"x\""), righe.Fields("TitoloRivista").Testo()) << origine;
    EXPECT_EQ("B", righe.Fields("CPER").Testo()) << origine;
  }
  Recordset tutte = db_.OpenRecordset(QStringLiteral("TabRivista"));
  EXPECT_EQ("uno", tutte.Fields("TitoloRivista").Testo());
}

TEST_F(RecordsetTest, DeleteToglieLaRigaEIlPassoSeguenteVaAllaSuccessiva) {
  for (const char* cper : {"A", "B", "C"}) Rivista(cper, "t");
  for (const char* origine : {"TabRivista", "select * from TabRivista"}) {
    Recordset righe = db_.OpenRecordset(origine);
    righe.Delete();
    EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("CPER"); })) << origine;
    righe.MoveNext();
    EXPECT_NE("A", righe.Fields("CPER").Testo()) << origine;
  }
  Recordset restano = db_.OpenRecordset(QStringLiteral("TabRivista"));
  EXPECT_EQ("C", Codici(restano));
}

TEST_F(RecordsetTest, UnNumeroCancellatoNonTornaPiu) {
  Rivista("A", "t");
  const qint64 ultimo = Rivista("B", "t");
  db_.Execute(QStringLiteral("delete * from TabRivista where CPER = 'B'"));
  EXPECT_EQ(ultimo + 1, Rivista("C", "t"));
}

TEST_F(RecordsetTest, IFallimentiHannoIlNumeroDellaPiattaforma) {
  Rivista("A", "t");
  Recordset unione =
      db_.OpenRecordset(QStringLiteral("select * from TabRivista, TabPeriodicita"));
  Recordset righe = db_.OpenRecordset(QStringLiteral("TabRivista"));
  Aggiungi(db_, QStringLiteral("TabLingua"), {{"idLingua", "00"}});
  const struct {
    int numero;
    std::function<void()> azione;
  } casi[] = {
      {3265, [&] { (void)righe.Fields("Manca"); }},
      {3078, [&] { (void)db_.OpenRecordset(QStringLiteral("TabManca")); }},
      {3078, [&] { (void)db_.OpenRecordset(QStringLiteral("select * from TabManca")); }},
      {3061, [&] { (void)db_.OpenRecordset(QStringLiteral("select * from TabRivista where x = 1")); }},
      {3075, [&] { (void)db_.OpenRecordset(QStringLiteral("select * from where")); }},
      {3075, [&] { db_.Execute(QStringLiteral("delete * from TabRivista where CPER = 'A")); }},
      {3022, [&] { Aggiungi(db_, QStringLiteral("TabLingua"), {{"idLingua", "00"}}); }},
      {3022, [&] { Aggiungi(db_, QStringLiteral("TabRivista"), {{"IDRivista", 1}}); }},
      {3421, [&] { Aggiungi(db_, QStringLiteral("TabRivista"), {{"IDPeriodicita", "x"}}); }},
      {3027, [&] { unione.AddNew(); }},
      {3251, [&] { unione.Seek(1); }},
      {91, [&] { (void)Database().OpenRecordset(QStringLiteral("TabInfo")); }},
      {91, [&] { Database().Close(); }},
  };
  for (const auto& caso : casi) {
    EXPECT_EQ(caso.numero, NumeroErrore(caso.azione)) << "case " << (&caso - casi);
  }
}

TEST_F(RecordsetTest, ChiusoLArchivioOgniUsoFallisceENientePuoCadere) {
  Rivista("A", "t");
  Rivista("B", "t");
  Recordset tabella = db_.OpenRecordset(QStringLiteral("TabRivista"));
  Recordset ferma = db_.OpenRecordset(QStringLiteral("select * from TabRivista"));
  const Database copia = db_;
  db_.Close();
  EXPECT_EQ(3420, NumeroErrore([&] { tabella.MoveNext(); }));
  EXPECT_EQ(3420, NumeroErrore([&] { (void)ferma.Fields("CPER"); }));
  EXPECT_EQ(3420, NumeroErrore([&] { (void)copia.OpenRecordset(QStringLiteral("TabInfo")); }));
  EXPECT_EQ(3420, NumeroErrore([&] { db_.Close(); }));
}

TEST_F(RecordsetTest, UnIstruzioneRipresaConAltriValoriDaLeSueRighe) {
  for (int i = 0; i < 4; ++i) {
    Aggiungi(db_, QStringLiteral("LegameDocTesto"),
             {{"IDDoc", i % 2}, {"IDTesto", i}, {"Tipo", QString::number(i)}});
  }
  const QString istruzione = QStringLiteral(
      "select * from legameDocTesto where legameDocTesto.IDDoc = ?and legameDocTesto.Tipo = ?");
  Recordset prima = db_.OpenRecordset(istruzione, {0, QStringLiteral("2")});
  Recordset seconda = db_.OpenRecordset(istruzione, {1, QStringLiteral("3")});
  EXPECT_EQ(2, prima.Fields("IDTesto").Intero());
  EXPECT_EQ(3, seconda.Fields("IDTesto").Intero());
  prima.Close();
  EXPECT_EQ(3420, NumeroErrore([&] { (void)prima.Eof(); }));
  EXPECT_TRUE(db_.OpenRecordset(istruzione, {1, QStringLiteral("2")}).Eof());
}

}  // namespace
}  // namespace torvi
