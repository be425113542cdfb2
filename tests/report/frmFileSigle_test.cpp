#include "report/frmFileSigle.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

class FileSigle : public testing::Test {
 protected:
  FileSigle() {
    stato.CartellaApplicazione = cartella.Percorso();
    ScriviByte(cartella.Mdb("sigle.A03"), "A01\r\nB02\r\nC03\r\n");
  }
  // What the operator does in the form, until it closes.
  int Usa(const Passo& uso) {
    frmFileSigle forma(stato, dialoghi);
    int esito = -1;
    Operatore::Esegue([&] { esito = forma.exec(); }, {uso});
    return esito;
  }
  // By the keyboard: a mnemonic would press the button some time later.
  static void Premi(const QWidget& forma, const char* pulsante) {
    Trova<QPushButton>(forma, pulsante).setFocus();
    Batti("{Space}");
  }
  void AttendeSigla(const char* sigla) {
    dialoghi.AttendeImmissione("Inserisci sigla:", "Nuova sigla", sigla);
  }
  void AttendeFile(const char* nome) { dialoghi.AttendeFile(kApri, cartella.Mdb(nome)); }
  // Which of the hidden controls are shown, and the count.
  static QString Mostrati(const QWidget& forma) {
    QStringList nomi;
    for (const char* nome : {"frmOperazioniSigle", "Label1", "Label2"}) {
      if (Trova<QWidget>(forma, nome).isVisible()) nomi += nome;
    }
    return nomi.join('|') + ":" + Trova<QLabel>(forma, "Label2").text();
  }

  const QString kApri = "Apri file sigle";
  const QString kTutti = "frmOperazioniSigle|Label1|Label2:";
  CartellaDiProva cartella;
  StatoGlobale stato;
  DialoghiScritti dialoghi;
};

TEST_F(FileSigle, ChangesAListByKeys) {
  AttendeFile("sigle.A03");
  AttendeSigla("D04");
  AttendeSigla("");  // cancelled
  stato.FileBatch = cartella.Dump("lexxdump isis.A03");
  const int esito = Usa([&](QWidget& forma) {
    EXPECT_EQ(Trova<QCheckBox>(forma, "chkNuovoFile").text(), "File nuovo?");
    EXPECT_EQ(Scritte(forma),
              "Composizione file sigle|Numero sigle:||&Apri file sigle|&Nuova sigla|"
              "&Elimina sigla|Esci e &salva|A&nnulla");
    EXPECT_EQ(Mostrati(forma), ":");
    Premi(forma, "cmdApriFileSigle");
    EXPECT_EQ(Mostrati(forma), kTutti + "3");
    Premi(forma, "cmdNuovaSigla");
    Premi(forma, "cmdNuovaSigla");
    Premi(forma, "cmdEliminaSigla");  // none is selected
    EXPECT_EQ(Trova<QListWidget>(forma, "lstSigle").count(), 4);
    Trova<QListWidget>(forma, "lstSigle").setFocus();
    Batti("{Down}{Down}");
    Premi(forma, "cmdEliminaSigla");
    Premi(forma, "cmdEliminaSigla");  // the one that was selected is gone
    EXPECT_EQ(stato.FileBatch, cartella.Mdb("sigle.A03"));
    EXPECT_EQ(Mostrati(forma), kTutti + "3");  // as it was read
    Premi(forma, "cmdEsciSalva");
  });
  EXPECT_EQ(esito, QDialog::Accepted);
  EXPECT_EQ(Byte(cartella.Mdb("sigle.A03")), "A01\r\nC03\r\nD04\r\n");
  EXPECT_EQ(stato.FileBatch, cartella.Dump("lexxdump isis.A03"));  // a list is no output
  EXPECT_TRUE(dialoghi.UltimaRichiesta().deveEsistere);
  EXPECT_EQ(dialoghi.UltimaRichiesta().filtro, "File sigle (sigle.*)|sigle.*");
  EXPECT_EQ(dialoghi.UltimaRichiesta().cartella, cartella.Percorso() + "/mdb");
}

TEST_F(FileSigle, MakesANewListUnderANameOfItsOwn) {
  dialoghi.AttendeFileAnnullato(kApri);
  AttendeFile("SIGLE.a03");
  AttendeFile("sigle.A04");
  AttendeSigla("Z9");
  Usa([&](QWidget& forma) {
    Batti("{Space}{Return}");  // the check box has the focus
    EXPECT_EQ(dialoghi.UltimoMessaggio(), "Inserire nome file (sigle.sigla aggiornamento)");
    EXPECT_EQ(Mostrati(forma), ":");
    Premi(forma, "cmdApriFileSigle");
    EXPECT_EQ(dialoghi.UltimoMessaggio(), "Nome archivio già presente: inserire un nuovo nome!");
    EXPECT_EQ(Mostrati(forma), kTutti + "0");
    Premi(forma, "cmdNuovaSigla");
    Premi(forma, "cmdEsciSalva");
  });
  EXPECT_FALSE(dialoghi.UltimaRichiesta().deveEsistere);
  EXPECT_EQ(Byte(cartella.Mdb("sigle.A04")), "Z9\r\n");
  EXPECT_EQ(Byte(cartella.Mdb("sigle.A03")), "A01\r\nB02\r\nC03\r\n");
}

TEST_F(FileSigle, WritesNothingWithoutAFileOrWhenLeft) {
  AttendeFile("sigle.A03");
  dialoghi.AttendeFileAnnullato(kApri);
  stato.FileBatch = cartella.Dump("note.A03");
  const int esito = Usa([&](QWidget& forma) {
    Premi(forma, "cmdEsciSalva");
    EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '75': "));
    Premi(forma, "cmdApriFileSigle");
    Premi(forma, "cmdApriFileSigle");
    Premi(forma, "cmdEsciSalva");  // opened, then another that was not chosen
    EXPECT_TRUE(forma.isVisible());
    Premi(forma, "cmdAnnulla");
  });
  EXPECT_EQ(esito, QDialog::Rejected);
  EXPECT_EQ(stato.FileBatch, cartella.Dump("note.A03"));
  EXPECT_EQ(Byte(cartella.Mdb("sigle.A03")), "A01\r\nB02\r\nC03\r\n");
}

}  // namespace
}  // namespace torvi
