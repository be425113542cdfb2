#include "archive/esempio.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QSet>

#include "archive/master.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "export/esporta_ascii.h"

namespace torvi {
namespace {

// One sample delivery for all tests.
class Esempio : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    cartella_ = std::make_unique<CartellaDiProva>();
    CreaEsempio(cartella_->Mdb("A01.MDB"), {}, kDocumentiEsempio);
  }
  static void TearDownTestSuite() { cartella_.reset(); }

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
  EXPECT_EQ(ErroreDi([&] { CreaEsempio(nuovo, consegna, 1); }),
            "3011 Il master " + consegna +
                " contiene già i dati di una consegna (TabInfo non è vuota): mettere al suo posto "
                "un archivio master e riprovare.");
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
