#include "classificazione/frmClassificazione1999.h"

#include <gtest/gtest.h>

#include "classificazione/righe_classe.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

class Forma1999 : public testing::Test {
 protected:
  Forma1999() {
    const qint64 padre =
        Aggiungi(stato.DbArchivio, "TabClasse1999", {{"Codice", "A1"}, {"descrizione", "radice"}});
    Aggiungi(stato.DbArchivio, "TabClasse1999",
             {{"Codice", "A12"}, {"descrizione", "figlia"}, {"ID_PADRE", padre}});
    stato.NuovaClasse = true;
  }
  void Apri(qint16 indice = -1) {
    forma = std::make_unique<frmClassificazione1999>(stato, dialoghi, indice);
    if (!stato.NuovaClasse) forma->PreparaClasseDaModificare();
    forma->show();
    QApplication::setActiveWindow(forma.get());
  }
  // Code, description and parent.
  [[nodiscard]] QString Mostra() const {
    return Trova<QLineEdit>(*forma, "txtCodice").text() + '|' +
           Trova<QLabel>(*forma, "labelD").text() + '|' + Trova<QLabel>(*forma, "labelP").text();
  }
  [[nodiscard]] std::string Lista() const {
    return RigheLista(stato.RigheClasse).join('|').toStdString();
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
  std::unique_ptr<frmClassificazione1999> forma;
};

TEST_F(Forma1999, AddsACodeByKeysAlone) {
  Apri();
  EXPECT_EQ(Scritte(*forma),
            "Classifcazione ante 2000|Codice||Figlio di:||&Esci e salva|&Abbandona");
  Batti("A12{Return}");
  EXPECT_EQ(Mostra(), "A12|figlia|A1 - radice");
  Batti("{Shift+Tab}A1{Return}");
  EXPECT_EQ(Mostra(), "A1|radice|");
  Batti("{Return}");
  EXPECT_EQ(forma->result(), QDialog::Accepted);
  EXPECT_EQ(Lista(), "0 - A1; ");
}

TEST_F(Forma1999, ChangesARowAndTakesItsMarkAway) {
  stato.NuovaClasse = false;
  stato.RigheClasse = {{1, "A12", "", 0, false, true}};
  Apri(0);
  EXPECT_EQ(Mostra(), "A12|figlia|A1 - radice");
  Clic(*forma, "cmdEsci");
  EXPECT_EQ(Lista(), "0 - A12; ");
  Apri(-1);
  EXPECT_EQ(Mostra(), "||");
  EXPECT_EQ(NumeroErrore([this] { Apri(1); }), 9);
}

TEST_F(Forma1999, KeepsTheOperatorAtAWrongCodeButLetsHimGo) {
  Apri();
  Batti("B\"2'{Tab}");
  Clic(*forma, "cmdEsci");
  QCoreApplication::processEvents();
  EXPECT_EQ(dialoghi.Messaggi(), QStringList(2, "Codice errato!"));
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Attenzione!");
  EXPECT_EQ(forma->focusWidget()->objectName(), "txtCodice");
  Batti("{Esc}");
  EXPECT_EQ(forma->result(), QDialog::Rejected);
  EXPECT_FALSE(forma->isVisible());
  Apri();
  Batti("B");
  Clic(*forma, "cmdAbbandona");
  QCoreApplication::processEvents();
  EXPECT_FALSE(forma->isVisible());
  EXPECT_EQ(dialoghi.Messaggi().size(), 2);
  EXPECT_TRUE(stato.RigheClasse.empty());
}

TEST_F(Forma1999, ClosesAfterAskingForTheCode) {
  dialoghi.AttendeDomanda("Immettere il codice del sistematico!", "Attenzione!",
                          Pulsanti::OkAnnulla, Risposta::Ok);
  Apri();
  Clic(*forma, "cmdEsci");
  EXPECT_EQ(forma->result(), QDialog::Accepted);
  EXPECT_EQ(Lista(), "");
}

}  // namespace
}  // namespace torvi
