#include "report/frmSceltaFileOut.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

class SceltaFileOut : public testing::Test {
 protected:
  SceltaFileOut() {
    for (const char* nome : {"lexxdump isis.A01", "lexxdump storico.A01", "errori.A01"}) {
      ScriviByte(cartella.Dump(nome), "x");
    }
    // The folder is asked for in another case than it has on disk.
    forma = std::make_unique<frmSceltaFileOut>(dialoghi, cartella.Percorso() + "/Dump",
                                               "lexxdump*.*", true);
    forma->show();
  }
  [[nodiscard]] QListWidget& Lista() const { return Trova<QListWidget>(*forma, "fileListOut"); }

  const CartellaDiProva cartella;
  DialoghiScritti dialoghi;
  std::unique_ptr<frmSceltaFileOut> forma;
};

TEST_F(SceltaFileOut, ShowsTheFilesThatMatch) {
  EXPECT_EQ(Scritte(*forma),
            "Scelta file di uscita|Scegli un file:|&Conferma|&Nuovo file|&Annulla");
  ASSERT_EQ(Lista().count(), 2);
  EXPECT_EQ(Lista().item(0)->text(), "lexxdump isis.A01");
  EXPECT_TRUE(Trova<QPushButton>(*forma, "cmdNuovo").isVisible());
  const frmSceltaFileOut senzaNuovo(dialoghi, cartella.Percorso() + "/dump", "lexxdump*.*", false);
  EXPECT_TRUE(Trova<QPushButton>(senzaNuovo, "cmdNuovo").isHidden());
}

TEST_F(SceltaFileOut, WantsAFileBeforeItCloses) {
  Clic(*forma, "cmdConferma");
  EXPECT_TRUE(forma->isVisible());
  EXPECT_EQ(dialoghi.Messaggi(),
            QStringList{"Non è stato selezionato alcun file fra gli esistenti né il nome di uno "
                        "nuovo!"});
  QTest::mouseClick(Lista().viewport(), Qt::LeftButton, {},
                    Lista().visualItemRect(Lista().item(1)).center());
  Clic(*forma, "cmdConferma");
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump storico.A01"));
}

TEST_F(SceltaFileOut, FollowsTheKeyboard) {
  QApplication::setActiveWindow(forma.get());
  Lista().setFocus();
  Batti("{Down}");
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump isis.A01"));
  Batti("{Down}{Return}");
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump storico.A01"));
}

TEST_F(SceltaFileOut, JoinsFolderAndNewNameAsTheyStand) {
  const QString testo = "Inserisci nuovo nome file:";
  const QString titolo = "Nome file nuovo";
  dialoghi.AttendeImmissione(testo, titolo, "/lexxdump unico.B01");
  dialoghi.AttendeImmissione(testo, titolo, "\\lexxdump unico.B02");
  dialoghi.AttendeImmissione(testo, titolo, "unico");
  Clic(*forma, "cmdNuovo");
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump unico.B01"));
  Clic(*forma, "cmdNuovo");
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump unico.B02"));
  Clic(*forma, "cmdNuovo");
  EXPECT_EQ(forma->FileBatch, cartella.Percorso() + "/dumpunico");
  EXPECT_TRUE(forma->isVisible());
}

TEST_F(SceltaFileOut, CancelLeavesTheChoiceAsItIs) {
  Lista().setCurrentRow(0);
  Clic(*forma, "cmdAnnulla");
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(forma->FileBatch, cartella.Dump("lexxdump isis.A01"));
}

}  // namespace
}  // namespace torvi
