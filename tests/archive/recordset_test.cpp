#include "archive/recordset.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

class RecordsetTest : public testing::Test {
 protected:
  qint64 Sezione(const char* sigla, const char* nome) {
    return Aggiungi(db_, "TabSezione", {{"sigla", sigla}, {"sezione", nome}});
  }
  // The codes in the order of the moves.
  static QString Codici(Recordset& righe, bool avanti = true) {
    QStringList codici;
    while (avanti ? !righe.Eof() : !righe.Bof()) {
      codici += righe.Fields("Sigla").TestoOVuoto();
      avanti ? righe.MoveNext() : righe.MovePrevious();
    }
    return codici.join(' ');
  }

  CartellaDiProva cartella_;
  Database db_ = cartella_.NuovaConsegna();
};

TEST_F(RecordsetTest, SenzaRigheEAiDueEstremi) {
  for (const char* origine : {"TabSezione", "select * from TabSezione"}) {
    Recordset righe = db_.OpenRecordset(origine);
    EXPECT_TRUE(righe.Eof() && righe.Bof()) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveFirst(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveLast(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveNext(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MovePrevious(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("sigla"); })) << origine;
  }
}

TEST_F(RecordsetTest, SiMuoveAvantiEIndietroNellOrdineDeiPosti) {
  for (const char* sigla : {"ZZ", "aa", "MM"}) Sezione(sigla, "t");
  for (const char* origine : {"tabsezione", "select * from tabSezione"}) {
    Recordset righe = db_.OpenRecordset(origine);
    EXPECT_EQ("ZZ aa MM", Codici(righe)) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MoveNext(); })) << origine;
    righe.MovePrevious();
    EXPECT_EQ("MM aa ZZ", Codici(righe, false)) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { righe.MovePrevious(); })) << origine;
    righe.MoveNext();
    EXPECT_EQ("ZZ", righe.Fields("sigla").Testo()) << origine;
    righe.MoveLast();
    EXPECT_EQ("MM", righe.Fields("sigla").Testo()) << origine;
    righe.MoveFirst();
    EXPECT_EQ("ZZ", righe.Fields("sigla").Testo()) << origine;
  }
}

TEST_F(RecordsetTest, UnIndiceOrdinaIMovimentiESenzaRiguardoAlleMaiuscole) {
  for (const char* sigla : {"ZZ", "aa", "MM", "AA"}) Sezione(sigla, "t");
  Aggiungi(db_, "TabSezione", {{"sezione", "senza codice"}});
  Recordset righe = db_.OpenRecordset("TabSezione");
  righe.Index("sigla");
  EXPECT_EQ(" aa AA MM ZZ", Codici(righe));
  righe.MovePrevious();
  EXPECT_EQ("ZZ MM AA aa ", Codici(righe, false));
  EXPECT_EQ(3015, NumeroErrore([&] { righe.Index("Titolo"); }));
}

TEST_F(RecordsetTest, SeekTrovaLaPrimaDelleUgualiOMancaEAllorNonCERiga) {
  Sezione("RGI", "prima");
  const qint64 doppia = Sezione("rgi", "seconda");
  Recordset righe = db_.OpenRecordset("TabSezione");
  righe.Index("Sigla");
  righe.Seek("Rgi");
  ASSERT_FALSE(righe.NoMatch());
  EXPECT_EQ("prima", righe.Fields("sezione").Testo());
  righe.Seek("RG");
  EXPECT_TRUE(righe.NoMatch());
  EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("sigla"); }));
  righe.Seek(Campo());
  EXPECT_TRUE(righe.NoMatch());
  righe.Index("PrimaryKey");
  righe.Seek(QString::number(doppia));
  EXPECT_EQ("seconda", righe.Fields("sezione").Testo());
  Aggiungi(db_, "TabLingua", {{"idLingua", "07"}, {"Lingua", "sardo"}});
  Recordset lingue = db_.OpenRecordset("TabLingua");
  lingue.Index("PrimaryKey");
  lingue.Seek("07");
  EXPECT_EQ("sardo", lingue.Fields("lingua").Testo());
}

TEST_F(RecordsetTest, AddNewLasciaLaRigaCorrenteELastModifiedLaNuova) {
  Sezione("A", "uno");
  Recordset righe = db_.OpenRecordset("TabSezione");
  righe.AddNew();
  righe.Assegna("sigla", "B");
  EXPECT_EQ("B", righe.Fields("Sigla").Testo());
  EXPECT_TRUE(righe.Fields("sezione").Nullo());
  righe.Update();
  EXPECT_EQ("A", righe.Fields("sigla").Testo());
  righe.Bookmark(righe.LastModified());
  EXPECT_EQ("B", righe.Fields("sigla").Testo());
  EXPECT_EQ(2, righe.Fields("IDSez").Intero());
  EXPECT_EQ(3020, NumeroErrore([&] { righe.Assegna("sigla", "C"); }));
  EXPECT_EQ(3020, NumeroErrore([&] { righe.Update(); }));
}

TEST_F(RecordsetTest, EditCambiaSoloCioCheSiAssegna) {
  Sezione("A", "uno");
  Sezione("B", "due");
  for (const char* origine : {"TabSezione", "select * from TabSezione where sigla = 'b'"}) {
    Recordset righe = db_.OpenRecordset(origine);
    if (righe.Fields("sigla").Testo() != "B") righe.MoveNext();
    righe.Edit();
    righe.Assegna("sezione", "L'«àncora» \"x\"");
    righe.Update();
    EXPECT_EQ("L'«àncora» \"x\"", righe.Fields("sezione").Testo()) << origine;
    EXPECT_EQ("B", righe.Fields("sigla").Testo()) << origine;
  }
  Recordset tutte = db_.OpenRecordset("TabSezione");
  EXPECT_EQ("uno", tutte.Fields("sezione").Testo());
}

TEST_F(RecordsetTest, DeleteToglieLaRigaEIlPassoSeguenteVaAllaSuccessiva) {
  for (const char* sigla : {"A", "B", "C"}) Sezione(sigla, "t");
  for (const char* origine : {"TabSezione", "select * from TabSezione"}) {
    Recordset righe = db_.OpenRecordset(origine);
    righe.Delete();
    EXPECT_EQ(3021, NumeroErrore([&] { (void)righe.Fields("sigla"); })) << origine;
    righe.MoveNext();
    EXPECT_NE("A", righe.Fields("sigla").Testo()) << origine;
  }
  Recordset restano = db_.OpenRecordset("TabSezione");
  EXPECT_EQ("C", Codici(restano));
}

TEST_F(RecordsetTest, UnaRigaCancellataDaAltriNonSiCambiaEDoveMancaUnValoreSiDiceLaColonna) {
  for (const char* origine : {"TabSezione", "select * from TabSezione"}) {
    Sezione("A", "t");
    Recordset cambia = db_.OpenRecordset(origine);
    Recordset toglie = db_.OpenRecordset(origine);
    cambia.Edit();
    cambia.Assegna("sigla", "B");
    toglie.MoveFirst();
    db_.Execute("delete * from TabSezione");
    const QString atteso = "3021 Nessun record corrente: la riga di TabSezione è stata cancellata";
    EXPECT_EQ(atteso, ErroreDi([&] { cambia.Update(); })) << origine;
    EXPECT_EQ(3021, NumeroErrore([&] { toglie.Delete(); })) << origine;
    EXPECT_EQ("3265 Elemento non trovato nell'insieme: TabSezione.Manca",
              ErroreDi([&] { (void)toglie.Colonna("Manca"); }))
        << origine;

    Aggiungi(db_, "TabSezione", {{"sigla", "Z"}});
    const Recordset nulla = db_.OpenRecordset(origine);
    const QString senza = "94 Utilizzo non valido di Null: sezione";
    EXPECT_EQ(senza, ErroreDi([&] { (void)nulla.Fields("sezione").Testo(); })) << origine;
    EXPECT_EQ(senza, ErroreDi([&] { (void)nulla.Copia().Fields("sezione").Testo(); })) << origine;
    db_.Execute("delete * from TabSezione");
  }
}

TEST_F(RecordsetTest, IFallimentiHannoIlNumeroDellaPiattaforma) {
  Sezione("A", "t");
  Recordset unione = db_.OpenRecordset("select * from TabSezione, TabPeriodicita");
  Recordset righe = db_.OpenRecordset("TabSezione");
  Aggiungi(db_, "TabLingua", {{"idLingua", "00"}});
  const struct {
    int numero;
    std::function<void()> azione;
  } casi[] = {
      {3265, [&] { (void)righe.Fields("Manca"); }},
      {3078, [&] { (void)db_.OpenRecordset("TabManca"); }},
      {3078, [&] { (void)db_.OpenRecordset("select * from TabManca"); }},
      {3061, [&] { (void)db_.OpenRecordset("select * from TabSezione where x = 1"); }},
      {3075, [&] { (void)db_.OpenRecordset("select * from where"); }},
      {3075, [&] { db_.Execute("delete * from TabSezione where sigla = 'A"); }},
      {3022,
       [&] {
         Aggiungi(db_, "TabLingua", {{"idLingua", "00"}});
       }},
      {3022,
       [&] {
         Aggiungi(db_, "TabSezione", {{"IDSez", 1}});
       }},
      {3421,
       [&] {
         Aggiungi(db_, "TabSezione", {{"nuovo", "x"}});
       }},
      {3027, [&] { unione.AddNew(); }},
      {3251, [&] { unione.Seek(1); }},
      {91, [&] { (void)Database().OpenRecordset("TabInfo"); }},
      {91, [&] { Database().Close(); }},
  };
  for (const auto& caso : casi) {
    EXPECT_EQ(caso.numero, NumeroErrore(caso.azione)) << "case " << (&caso - casi);
  }
}

TEST_F(RecordsetTest, ChiusoLArchivioOgniUsoFallisceENientePuoCadere) {
  Sezione("A", "t");
  Sezione("B", "t");
  Recordset tabella = db_.OpenRecordset("TabSezione");
  Recordset ferma = db_.OpenRecordset("select * from TabSezione");
  const Database copia = db_;
  db_.Close();
  EXPECT_EQ(3420, NumeroErrore([&] { tabella.MoveNext(); }));
  EXPECT_EQ(3420, NumeroErrore([&] { (void)ferma.Fields("sigla"); }));
  EXPECT_EQ(3420, NumeroErrore([&] { (void)copia.OpenRecordset("TabInfo"); }));
  EXPECT_EQ(3420, NumeroErrore([&] { db_.Close(); }));
}

TEST_F(RecordsetTest, UnIstruzioneRipresaConAltriValoriDaLeSueRighe) {
  for (int i = 0; i < 4; ++i) {
    Aggiungi(db_, "LegameDocTesto",
             {{"IDDoc", i % 2}, {"IDTesto", i}, {"Tipo", QString::number(i)}});
  }
  const QString istruzione =
      "select * from legameDocTesto where legameDocTesto.IDDoc = ?and legameDocTesto.Tipo = ?";
  Recordset prima = db_.OpenRecordset(istruzione, {0, "2"});
  Recordset seconda = db_.OpenRecordset(istruzione, {1, "3"});
  EXPECT_EQ(2, prima.Fields("IDTesto").Intero());
  EXPECT_EQ(3, seconda.Fields("IDTesto").Intero());
  prima.Close();
  EXPECT_EQ(3420, NumeroErrore([&] { (void)prima.Eof(); }));
  EXPECT_TRUE(db_.OpenRecordset(istruzione, {1, "2"}).Eof());
}

}  // namespace
}  // namespace torvi
