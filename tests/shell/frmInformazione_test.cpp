#include "shell/frmInformazione.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include "comune/dialoghi_scritti.h"
#include "comune/finestre.h"

namespace torvi {
namespace {

class FormaInformazione : public testing::Test {
 protected:
  FormaInformazione() {
    forma.InfoNuovoArchivio = "vecchio";
    forma.show();
  }
  void Compila() const {
    Trova<QComboBox>(forma, "ComboCentro").setCurrentIndex(17);
    Trova<QComboBox>(forma, "ComboAProd").setCurrentIndex(1);
    Trova<QLineEdit>(forma, "txtConsegna").setText("b7");
    Trova<QLineEdit>(forma, "txtInizio").setText("0035");
  }

  DialoghiScritti dialoghi;
  frmInformazione forma{dialoghi, 2001};
};

TEST_F(FormaInformazione, ShowsItsControls) {
  EXPECT_EQ(Scritte(forma),
            "Informazione consegna|Centro di spoglio|Anno di produzione|Consegna|Numero iniziale|"
            "&Ok|&Annulla");
  const auto& centro = Trova<QComboBox>(forma, "ComboCentro");
  const auto& anno = Trova<QComboBox>(forma, "ComboAProd");
  EXPECT_EQ(centro.count(), 35);
  EXPECT_EQ(anno.itemText(0) + "-" + anno.itemText(5), "2000-2005");
  EXPECT_EQ(centro.currentIndex(), -1);
  EXPECT_EQ(centro.placeholderText(), "Centro spoglio");
  EXPECT_EQ(anno.currentIndex(), -1);
  EXPECT_EQ(anno.placeholderText(), "Anno produzione");
  EXPECT_EQ(Trova<QLineEdit>(forma, "txtConsegna").text(), "");
}

TEST_F(FormaInformazione, JoinsTheFourFields) {
  Compila();
  Clic(forma, "cmdOk");
  EXPECT_FALSE(forma.isVisible());
  EXPECT_EQ(forma.InfoNuovoArchivio, "b7|0035|J|2001");
}

TEST_F(FormaInformazione, AsksWhatToDoWithMissingFields) {
  const QString domanda =
      "Vuoi completare le informazioni (oppure uscire abbandonando l'operazione di 'Nuovo "
      "archivio')?";
  dialoghi.AttendeDomanda(domanda, "Attenzione", Pulsanti::SiNo, Risposta::Si);
  dialoghi.AttendeDomanda(domanda, "Attenzione", Pulsanti::SiNo, Risposta::No);
  Compila();
  Trova<QComboBox>(forma, "ComboCentro").setCurrentIndex(-1);
  Clic(forma, "cmdOk");
  EXPECT_TRUE(forma.isVisible());
  EXPECT_EQ(Trova<QLineEdit>(forma, "txtConsegna").text(), "b7");
  Clic(forma, "cmdOk");
  EXPECT_FALSE(forma.isVisible());
  EXPECT_EQ(forma.InfoNuovoArchivio, "");
  EXPECT_EQ(dialoghi.Messaggi(), QStringList(2, "Informazioni incomplete!"));
  EXPECT_EQ(dialoghi.Parole().first().icona, Icona::Informazione);
}

TEST_F(FormaInformazione, CancelEmptiesTheAnswer) {
  Compila();
  Clic(forma, "cmdAnnulla");
  EXPECT_FALSE(forma.isVisible());
  EXPECT_EQ(forma.InfoNuovoArchivio, "");
}

}  // namespace
}  // namespace torvi
