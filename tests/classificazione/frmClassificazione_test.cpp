#include "classificazione/frmClassificazione.h"

#include <gtest/gtest.h>

#include <QMainWindow>

#include "classificazione/frmAsteriscati.h"
#include "classificazione/righe_classe.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"
#include "shell/finestra_dialoghi.h"

namespace torvi {
namespace {

const QString kSistematicoErrato = "Codice sistematico errato!";
const QString kDescrittoreErrato = "Codice descrittore errato!";

class FormaClassificazione : public testing::Test {
 protected:
  FormaClassificazione() {
    const UnitaDiScrittura unita(stato.DbArchivio);
    const Database& archivio = stato.DbArchivio;
    Aggiungi(archivio, "TabClasse2000-S",
             {{"CodiceS", "S0001"}, {"sigla", "DC"}, {"descrizione", "diritto civile"}});
    for (const char* codice : {"D0001", "D0002"}) {
      Aggiungi(archivio, "TabClasse2000-D", {{"CodiceD", codice}, {"descrizione", "voce"}});
    }
    Aggiungi(archivio, "TabLegameDS", {{"NS", "S0001"}, {"ND", "D0001"}});
    for (const auto& [ns, nd] : {std::pair{"S0001", "*b"}, {"S0002", "*a"}, {"S0002", "*b"}}) {
      Aggiungi(archivio, "TabLegameDSA", {{"NS", ns}, {"ND", nd}});
    }
    stato.NuovaClasse = true;
  }
  frmClassificazione& Apri(qint16 indice = -1) {
    forma = std::make_unique<frmClassificazione>(stato, dialoghi, indice);
    if (!stato.NuovaClasse) forma->PreparaClasseDaModificare();
    forma->show();
    QApplication::setActiveWindow(forma.get());
    return *forma;
  }
  // Mnemonics press their button with a short delay; a click goes the same way at once.
  [[nodiscard]] std::string Salvato() const {
    Clic(*forma, "cmdEsci");
    EXPECT_EQ(forma->result(), QDialog::Accepted);
    EXPECT_FALSE(forma->isVisible());
    return RigheLista(stato.RigheClasse).join('|').toStdString();
  }
  [[nodiscard]] QString Testo(const char* campo) const {
    return Trova<QLineEdit>(*forma, campo).text();
  }
  [[nodiscard]] QString Etichetta(const char* nome) const {
    return Trova<QLabel>(*forma, nome).text();
  }
  [[nodiscard]] QStringList Lista(const char* nome) const {
    return Linee(Trova<QListWidget>(*forma, nome));
  }
  [[nodiscard]] QString Fuoco() const { return forma->focusWidget()->objectName(); }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
  std::unique_ptr<frmClassificazione> forma;
};

TEST_F(FormaClassificazione, ShowsItsWordsByTheMode) {
  stato.RigheClasse = {{1, "S0001", "", 0, false, false}};
  for (const bool nuova : {true, false}) {
    stato.NuovaClasse = nuova;
    Apri(0);
    EXPECT_EQ(forma->windowTitle(), "Classificazione");
    for (const auto& [nome, testo] :
         {std::pair{"Label2", "Sistematico"}, std::pair{"Label3", "Descrittore"},
          std::pair{"Label1", "Descrittore nuovo"},
          std::pair{"Label4",
                    "Se occorre, scrivere nella casella sottostante un descrittore nuovo preceduto "
                    "dall'\"*\", oppure sceglierlo fra quelli ammessi con un click dalla lista "
                    "sottostante"},
          std::pair{"Label7",
                    "Scrivere nella casella il codice di un descrittore ed utilizzare il bottone "
                    "con il \"+\" per inserirlo nella lista. Per cancellare un descrittore, "
                    "selezionarlo con un click e poi utilizzare il bottone con il \"-\"."},
          std::pair{"Label5",
                    "Un click nello spazio grigio di fianco alla sigla del descrittore per vedere "
                    "la sua descrizione, qualora venga modificato."}}) {
      EXPECT_EQ(Etichetta(nome), testo);
    }
    for (const auto& [nome, testo, consiglio] :
         {std::tuple{"cmdDescrittoreN", "+", "Aggiungi alla lista"},
          std::tuple{"cmdDescrittoreD", "-", "Togli dalla lista"},
          std::tuple{"cmdAsteriscati", "&Lista asteriscati", "Lista asteriscati con i sistematici"},
          std::tuple{"cmdEsci", "&Esci e salva", ""},
          std::tuple{"cmdAbbandona", "&Abbandona", ""}}) {
      EXPECT_EQ(Trova<QPushButton>(*forma, nome).text(), testo);
      EXPECT_EQ(Trova<QPushButton>(*forma, nome).toolTip(), consiglio);
    }
    for (const auto& [nome, soloNuova] :
         {std::pair{"cmdDescrittoreN", true}, std::pair{"cmdDescrittoreD", true},
          std::pair{"Label7", true}, std::pair{"labelD", false}, std::pair{"Label5", false}}) {
      EXPECT_EQ(Trova<QWidget>(*forma, nome).isVisible(), soloNuova == nuova) << nome;
    }
    EXPECT_EQ(Trova<QListWidget>(*forma, "lstDescrittore").isEnabled(), nuova);
    EXPECT_EQ(Lista("lstAsteriscato").join('|'), "*a|*b");
  }
}

TEST_F(FormaClassificazione, AddsDescriptorsByKeysAlone) {
  Apri();
  Batti("S0001{Return}");
  EXPECT_EQ(Etichetta("LabelS"), "DC - diritto civile");
  for (const char* codice : {"D0002", "D0001", "D0001"}) {
    Batti(codice + QString("{Return}"));
    EXPECT_EQ(Testo("txtDescrittore"), "");
  }
  Batti("{Return}");  // an empty field adds nothing
  EXPECT_EQ(Lista("lstDescrittore").join('|'), "D0002 --> voce|D0001 --> voce|D0001 --> voce");
  Batti("{Tab}{Tab}");
  EXPECT_EQ(Fuoco(), "lstDescrittore");
  Batti("{Space}{Tab}{Space}{Space}");  // the selected one goes, and no other
  EXPECT_EQ(Lista("lstDescrittore").join('|'), "D0001 --> voce|D0001 --> voce");
  EXPECT_EQ(Salvato(), "0 - S0001; D0001|0 - S0001; D0001");
}

TEST_F(FormaClassificazione, RefusesAnUnknownDescriptor) {
  Apri();
  Trova<QLineEdit>(*forma, "txtDescrittore").setText("X");
  Clic(*forma, "cmdDescrittoreN");
  EXPECT_EQ(dialoghi.Messaggi(), QStringList(kDescrittoreErrato));
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Attenzione!");
  EXPECT_EQ(Fuoco() + Testo("txtDescrittore"), "txtDescrittore");
  EXPECT_TRUE(Lista("lstDescrittore").isEmpty());
}

TEST_F(FormaClassificazione, TakesATermFromTheList) {
  Apri();
  Batti("S0001");
  auto& lista = Trova<QListWidget>(*forma, "lstAsteriscato");
  QTest::mouseClick(lista.viewport(), Qt::LeftButton, {},
                    lista.visualItemRect(lista.item(0)).center());
  EXPECT_EQ(Testo("txtAsteriscato"), "*a");
  lista.setFocus();
  Batti("{Down}");
  EXPECT_EQ(Testo("txtAsteriscato"), "*b");
  EXPECT_EQ(Salvato(), "2 - S0001; *b");
}

TEST_F(FormaClassificazione, FillsItselfForAChange) {
  stato.NuovaClasse = false;
  stato.RigheClasse = {{1, "S0001", "D0002", 1, false, false}, {2, "S0001", "*b", 2, false, false}};
  Apri(1);
  EXPECT_EQ(Testo("txtAsteriscato") + Testo("txtDescrittore"), "*b");
  Apri(0);
  EXPECT_EQ(Etichetta("LabelS") + Etichetta("labelD"), "DC - diritto civilevoce");
  EXPECT_EQ(Testo("txtAsteriscato"), "");
  auto& campo = Trova<QLineEdit>(*forma, "txtDescrittore");
  auto& etichetta = Trova<QLabel>(*forma, "labelD");
  etichetta.clear();
  campo.setText("D0001");
  QTest::mouseClick(&etichetta, Qt::LeftButton);
  EXPECT_EQ(etichetta.text(), "voce");
  campo.setText("X");
  campo.setFocus();
  Batti("{Return}");  // as the button of new rows: silent
  EXPECT_EQ(Testo("txtDescrittore"), "X");
  EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
  QTest::mouseClick(&etichetta, Qt::LeftButton);
  QTest::mouseClick(&etichetta, Qt::LeftButton);  // empty by now
  EXPECT_EQ(dialoghi.Messaggi(), QStringList(kDescrittoreErrato));
  EXPECT_EQ(Testo("txtDescrittore") + Fuoco(), "txtDescrittore");
  EXPECT_EQ(Salvato(), "0 - S0001; |2 - S0001; *b");
  Apri(-1);
  EXPECT_EQ(Testo("txtSistematico"), "");
  EXPECT_EQ(NumeroErrore([this] { Apri(2); }), 9);
}

TEST_F(FormaClassificazione, KeepsTheOperatorAtAWrongSystematicCode) {
  Apri();
  Batti("X{Tab}");
  EXPECT_EQ(dialoghi.Messaggi(), QStringList(kSistematicoErrato));
  EXPECT_EQ(dialoghi.Parole().last().titolo, "Attenzione!");
  EXPECT_EQ(Fuoco() + Testo("txtSistematico"), "txtSistematicoX");
  for (const char* pulsante : {"cmdEsci", "cmdAsteriscati", "cmdDescrittoreN"}) {
    Clic(*forma, pulsante);
    QCoreApplication::processEvents();
    EXPECT_TRUE(forma->isVisible());
    EXPECT_EQ(Fuoco(), "txtSistematico");
  }
  QTest::mouseClick(&Trova<QLabel>(*forma, "LabelS"), Qt::LeftButton);
  EXPECT_EQ(dialoghi.Messaggi().size(), 5);
  EXPECT_TRUE(stato.RigheClasse.empty());
}

TEST_F(FormaClassificazione, ClosesOverAWrongCodeWithoutAWord) {
  for (const auto& chiudi :
       std::vector<std::function<void()>>{[this] { Clic(*forma, "cmdAbbandona"); },
                                          [] { Batti("{Esc}"); }, [this] { forma->close(); }}) {
    Apri();
    Batti("X");
    chiudi();
    QCoreApplication::processEvents();
    EXPECT_FALSE(forma->isVisible());
    EXPECT_EQ(forma->result(), QDialog::Rejected);
  }
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
  EXPECT_TRUE(stato.RigheClasse.empty());
}

TEST_F(FormaClassificazione, ClosesAfterAskingForTheSystematicCode) {
  dialoghi.AttendeDomanda("Immettere il codice del sistematico!", "Attenzione!",
                          Pulsanti::OkAnnulla, Risposta::Annulla);
  Apri();
  EXPECT_EQ(Salvato(), "");
}

TEST_F(FormaClassificazione, StaysOpenWhenThePairCannotBeRead) {
  stato.NuovaClasse = false;
  stato.RigheClasse = {{1, "S0001", "", 0, false, false}};
  Apri(0);
  Trova<QLineEdit>(*forma, "txtDescrittore").setText("D'1");
  Clic(*forma, "cmdEsci");
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '3075'"));
  EXPECT_TRUE(forma->isVisible());
}

TEST_F(FormaClassificazione, DoesNotOpenWithoutAsteriskedTerms) {
  stato.DbArchivio.Execute("delete * from TabLegameDSA");
  EXPECT_EQ(NumeroErrore([this] { Apri(); }), 3021);
}

// Real boxes: one message at a time, whatever is pressed while it stands.
TEST_F(FormaClassificazione, ShowsOneBoxForAWrongCode) {
  QMainWindow finestra;
  finestra.show();
  DialoghiFinestra riquadri(finestra);
  const QString errato = "Attenzione!|Codice sistematico errato!|OK";
  const auto scriviEdEsci = [](QWidget& modale) {
    QTest::keyClicks(modale.focusWidget(), "X");
    QTest::keyClick(&modale, Qt::Key_E, Qt::AltModifier);
  };
  int esito = -1;
  Operatore::Esegue([&] { esito = frmClassificazione(stato, riquadri, -1, &finestra).exec(); },
                    {scriviEdEsci, Riquadro(errato), [](QWidget& modale) {
                       EXPECT_EQ(modale.focusWidget()->objectName(), "txtSistematico");
                       QTest::keyClick(&modale, Qt::Key_A, Qt::AltModifier);
                     }});
  EXPECT_EQ(esito, QDialog::Rejected);
  EXPECT_TRUE(stato.RigheClasse.empty());
}

TEST_F(FormaClassificazione, ShowsTheAsteriskPairs) {
  Apri();
  Operatore::Esegue([this] { Clic(*forma, "cmdAsteriscati"); }, {[](QWidget& modale) {
                      EXPECT_EQ(modale.windowTitle(), "Lista asteriscati con i sistematici");
                      const auto& lista = Trova<QListWidget>(modale, "lstAsteriscati");
                      ASSERT_EQ(lista.count(), 3);
                      EXPECT_EQ(lista.item(0)->text(), "S0002 --- *a");
                      EXPECT_EQ(Trova<QPushButton>(modale, "cmdEsci").text(), "&Esci");
                      Clic(modale, "cmdEsci");
                    }});
  EXPECT_EQ(Testo("txtAsteriscato"), "");
}

}  // namespace
}  // namespace torvi
