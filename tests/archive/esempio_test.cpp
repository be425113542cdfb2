#include "archive/esempio.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

#include "archive/master.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "export/codepagina.h"
#include "export/esporta_ascii.h"

namespace torvi {
namespace {

// One sample delivery for all tests, exported once with the check for missing sources.
class Esempio : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    cartella_ = std::make_unique<CartellaDiProva>();
    CreaCatalogo(cartella_->Mdb("catalogo norme.mdb"));
    CreaEsempio(cartella_->Mdb("A01.MDB"), {}, kDocumentiEsempio);
    StatoGlobale stato;
    stato.CartellaApplicazione = cartella_->Percorso();
    stato.DbArchivio = OpenDatabase(cartella_->Mdb("A01.MDB"));
    DialoghiScritti dialoghi;
    dialoghi.AttendeDomanda("Controllo presenza fonti?", "Esportazione per ISIS", Pulsanti::SiNo,
                            Risposta::Si);
    dialoghi.AttendeDomanda("Accodare risultato dell'esportazione?", "Esportazione", Pulsanti::SiNo,
                            Risposta::No);
    EsportaAscii(stato, dialoghi, kEsportaIsis);
  }
  static void TearDownTestSuite() { cartella_.reset(); }

  static QString Uscita(const char* nome) { return DaAnsi(Byte(cartella_->Dump(nome))); }
  static QSet<QString> Valori(const QString& istruzione, const char* colonna) {
    const QStringList righe =
        RigheTesto(OpenDatabase(cartella_->Mdb("A01.MDB")), istruzione, {colonna});
    return {righe.begin(), righe.end()};
  }

  static std::unique_ptr<CartellaDiProva> cartella_;
};
std::unique_ptr<CartellaDiProva> Esempio::cartella_;

TEST_F(Esempio, CitesEveryKindOfSource) {
  const QSet<QString> citati = Valori(
      "select * from legameDocFonte, tabFonte where legameDocFonte.IDFnt = "
      "tabFonte.IDFonte",
      "TP");
  const char* const kVocabolario =
      "LIC LIAB LICO LIO LIOA LIR LIP AC GICO GICD GICA GIO GIT GICC GIA GIQ GIB GIM GIAL GIS "
      "NIT NIA GEI NIC GEC NS GS FCC FCA FCG FSRG FSRP FSRE FSRL FSGG FSGP FSGE FSGL FSBG FSBP "
      "FSBE FSBL FSC FSE FSI FSAG FSAP FSAE FSAL FSA";
  const QStringList vocabolario = QString::fromLatin1(kVocabolario).split(u' ');
  EXPECT_EQ(citati, QSet<QString>(vocabolario.begin(), vocabolario.end()));
}

TEST_F(Esempio, HasEveryKindOfTextAndPair) {
  EXPECT_EQ(Valori("select * from LegameDocTesto", "Tipo").size(), 9);
  EXPECT_EQ(Valori("select * from TabClasse2000", "Check").size(), 4);
  EXPECT_FALSE(Valori("select * from LegameDocClass1999", "IDClass").isEmpty());
  EXPECT_EQ(Valori("select * from LegameDocResp", "flagAutore").size(), 2);
  EXPECT_EQ(Valori("select * from TabResponsabilita", "flagCollettivo").size(), 2);
}

TEST_F(Esempio, MakesTheExportWriteEachOfItsMessages) {
  const QString generici = Uscita("errori.A01");
  for (const char* messaggio : {"Errore anno nel sottocampo DATA: ",
                                "Fascicolo con '/': ",
                                "Errore mese nel sottocampo DATA: ",
                                "Errore giorno nel sottocampo DATA: ",
                                "Errore fascicolo mancante: ",
                                "Errore di paginazione: ",
                                "Errore pagina mancante: ",
                                "Errore TD mancante: ",
                                "Manca 'In tema di'/'Sommario' e TABS = 500/800: ",
                                "Errore TAbs mancante: ",
                                "Errore BIB mancante: ",
                                "Errori sui dati bibliografici: ",
                                "Manca autore/curatore: ",
                                "Manca titolo: ",
                                "Contributo in lingua straniera: ",
                                "Contributo in lingua straniera senza traduzione del titolo: ",
                                "Traduzione del titolo immessa dal compilatore: ",
                                "TD = 01 e presenza nota: ",
                                "Manca nota e TD <> 01: ",
                                "Manca riassunto e TABS <> 600, 700, 400: ",
                                "Manca sommario e TABS = 600: ",
                                "Manca 'In tema di' e TABS = 700: ",
                                "C'è abstract in inglese e manca traduzione del titolo: rec. ",
                                "Manca fonte: ",
                                "Manca classificazione: "}) {
    EXPECT_TRUE(generici.contains(messaggio)) << messaggio;
  }
  const QString classi = Uscita("errClasse.A01");
  for (const char* messaggio :
       {"Coppia non valida (", "Coppia asteriscata valida (", "Coppia asteriscata non valida ("}) {
    EXPECT_TRUE(classi.contains(messaggio)) << messaggio;
  }
  const QString fonti = Uscita("errFonte.A01");
  for (const char* messaggio : {"Fonte TAR senza regione: ", "Fonte GICO con numero > 1000: ",
                                "Fonte GICO/GICA senza numero: ", "Fonte errata: "}) {
    EXPECT_TRUE(fonti.contains(messaggio)) << messaggio;
  }
  // Each is the work of one document: what is not spoiled on purpose is right.
  EXPECT_EQ(fonti.count("\r\n"), 5) << fonti.toStdString();
}

TEST_F(Esempio, BeginsWithADocumentWithoutFaults) {
  const QByteArray uscita = Byte(cartella_->Dump("lexxdump isis.A01"));
  EXPECT_TRUE(uscita.startsWith("2001A0012\r\n14\r\n 12001A0012\r\n 2AP=2001 NP=A0012\r\n"));
  for (const char* file : {"errori.A01", "errClasse.A01", "errFonte.A01"}) {
    EXPECT_FALSE(Uscita(file).contains("2001A0012")) << file;
  }
  EXPECT_EQ(uscita.count(" 2AP=2001 NP=A"), kDocumentiEsempio);
}

TEST_F(Esempio, IsTheSameForTheSameNumberWhateverTheMasterCameFrom) {
  const QString master = cartella_->Mdb("master.mdb");
  CreaMaster(master);
  const QString dalMaster = cartella_->Mdb("1.mdb");
  const QString senzaMaster = cartella_->Mdb("2.mdb");
  CreaEsempio(dalMaster, master, 120);
  CreaEsempio(senzaMaster, cartella_->Mdb("assente.mdb"), 120);
  EXPECT_EQ(Byte(dalMaster), Byte(senzaMaster));
}

TEST_F(Esempio, LeavesAFileAndAnUnsuitableMasterAlone) {
  const QString presente = cartella_->Mdb("presente.mdb");
  ScriviByte(presente, "altro");
  EXPECT_EQ(NumeroErrore([&] { CreaEsempio(presente, {}, 1); }), 75);
  EXPECT_EQ(Byte(presente), "altro");
  const QString nuovo = cartella_->Mdb("nuovo.mdb");
  const QString consegna = cartella_->Mdb("A01.MDB");
  EXPECT_EQ(NumeroErrore([&] { CreaEsempio(nuovo, consegna, 1); }), 3011);
  EXPECT_FALSE(QFile::exists(nuovo));
}

// Counters of shared rows stay where the export can hold them, however many documents there are.
TEST_F(Esempio, ExportsALongDeliveryWithoutARunTimeError) {
  CartellaDiProva cartella;
  const QString percorso = cartella.Mdb("A01.MDB");
  CreaCatalogo(cartella.Mdb("catalogo norme.mdb"));
  CreaEsempio(percorso, {}, 1500);
  for (const FlagEsportazione& flag : {kEsportaIsis, kEsportaCassazione, kEsportaStorico}) {
    StatoGlobale stato;
    stato.CartellaApplicazione = cartella.Percorso();
    stato.DbArchivio = OpenDatabase(percorso);
    stato.ModoBatch = true;
    stato.FileBatch = cartella.Dump("lexxdump.bat");
    DialoghiScritti dialoghi;
    EXPECT_EQ(NumeroErrore([&] { EsportaAscii(stato, dialoghi, flag); }), 0);
    EXPECT_EQ(stato.ContatoreDoc, 1512);
  }
}

}  // namespace
}  // namespace torvi
