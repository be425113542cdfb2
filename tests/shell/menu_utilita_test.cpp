#include <gtest/gtest.h>

#include <QListWidget>
#include <QPlainTextEdit>

#include "comune/cartella_di_prova.h"
#include "comune/tastiera.h"
#include "shell/MDIEditorTorvi.h"
#include "shell/avvio.h"

namespace torvi {
namespace {

const QString kLogin = "Login per accesso alla parte riservata";

// Each entry of the menus leads to its own command, and what the command shows can be answered.
class MenuUtilita : public testing::Test {
 protected:
  MenuUtilita() {
    stato = cartella.StatoConConsegna();
    PreparaStato(stato, cartella.Percorso());
    finestra = std::make_unique<MDIEditorTorvi>(stato);
    finestra->ImpostaFase(FaseMenu::ArchivioAperto);
    finestra->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }
  void Scegli(const QString& voce, const std::deque<Passo>& passi) {
    SCOPED_TRACE(voce.toStdString());
    Operatore::Esegue([&] { Trova<QAction>(*finestra, voce.toUtf8().constData()).trigger(); },
                      passi);
  }
  static Passo Fine(const char* testo) {
    return Riquadro(QStringLiteral("TorviEditor|%1|OK").arg(testo));
  }

  CartellaDiProva cartella;
  StatoGlobale stato;
  std::unique_ptr<MDIEditorTorvi> finestra;
};

TEST_F(MenuUtilita, PrintsAndExtractsTheOpenDelivery) {
  Scegli("mnuUtilitaHTML", {Fine("Fine stampa HTML (consegna A01)")});
  Scegli("mnuUtilitaHTML_HUDOC", {Fine("Fine stampa HTML_ GEI (consegna A01)")});
  Scegli("mnuFileNotaDocumenti", {Fine("Fine estrazione note ai documenti (consegna A01)")});
  Scegli("mnuFileNuovi", {Fine("Fine estrazione nuovi ai documenti (consegna A01)")});
  Scegli("mnuUtilitaControllo",
         {Forma(kLogin, "{Tab}$kavo${Return}"), [](QWidget& modale) {
            EXPECT_EQ(
                Trova<QPlainTextEdit>(modale, "txtErrori").toPlainText(),
                "Sono stati utilizzate le seguenti funzioni:\n'Stampa HTML per controllo Celex'");
            Clic(modale, "cmdChiudi");
          }});
}

TEST_F(MenuUtilita, RestrictedCommandsAskForTheLoginEachTime) {
  const auto abbandona = [](QWidget& modale) { Clic(modale, "cmdCancel"); };
  for (const char* voce :
       {"mnuCaricaTabLegami", "mnuCaricaTabDescrittori", "mnuCaricaTabDescrittoriAsteriscati",
        "mnuCaricaTabSistematici", "mnuCatalogoNorme"}) {
    Scegli(voce, {abbandona, Fine("Non hai i diritti per accedere")});
  }
  Scegli("mnuUtilitaControllo",
         {abbandona, Fine("Non hai i diritti per utilizzare alla funzione")});
  // What no trap takes is shown, and the program goes on.
  Scegli("mnuCatalogoNorme", {Forma(kLogin, "{Tab}$kavo${Return}"), [](QWidget& modale) {
                                EXPECT_TRUE(Parole(modale).contains("Errore di run-time '3024': "));
                                QTest::keyClick(&modale, Qt::Key_Return);
                              }});
}

TEST_F(MenuUtilita, BatchesGoThroughTheListChosen) {
  ScriviByte(cartella.Mdb("sigle.X01"), "A01\r\n");
  const auto scegli = [](QWidget& modale) {
    EXPECT_EQ(modale.windowTitle(), "Scelta file di uscita");
    EXPECT_FALSE(Trova<QPushButton>(modale, "cmdNuovo").isVisible());
    Trova<QListWidget>(modale, "fileListOut").setFocus();
    Batti("{Down}{Space}{Return}");
  };
  struct Caso {
    const char* voce;
    const char* fine;
    const char* file;
  };
  constexpr Caso kCasi[] = {
      {"Note", "Fine estrazione note ai documenti (consegna A01)", "note.X01"},
      {"FileNuovi", "Fine estrazione nuovi ai documenti (consegna A01)", "nuovi.X01"},
      {"Celex", "Fine stampa HTML (consegna A01)", "StampaHTML X01.htm"},
      {"HUDOC", "Fine stampa HTML_ GEI (consegna A01)", "StampaHTML_GEI X01.htm"},
      {"Storico", "3021 --> Nessun record corrente.", "lexxdump storico.X01"},
      {"ISIS", "3021 --> Nessun record corrente.", "lexxdump isis.X01"},
      {"Cassazione", "3021 --> Nessun record corrente.", "lexxdump cassazione.X01"}};
  for (const Caso& caso : kCasi) {
    Scegli(QStringLiteral("mnuUtilitaAggiornamento") + caso.voce, {scegli, Fine(caso.fine)});
    EXPECT_TRUE(QFile::exists(cartella.Dump(caso.file))) << caso.file;
    EXPECT_EQ(finestra->cursor().shape(), Qt::ArrowCursor);
  }
  Scegli("mnuUtilitaAggiornamentoConteggioDocumenti", {scegli});
  EXPECT_EQ(Byte(cartella.Dump("conteggio.X01")).count("\r\n"), 2);
  Scegli("mnuUtilitaAggiornamentoModificaLista", {Forma("Composizione file sigle", "{Escape}")});
  // The batch has closed the archive that was open; another one can be opened all the same.
  Scegli("mnuFileChiudi", {[](QWidget& modale) {
           EXPECT_TRUE(Parole(modale).contains("Errore di run-time '3420': "));
           QTest::keyClick(&modale, Qt::Key_Return);
         }});
  EXPECT_TRUE(Trova<QAction>(*finestra, "mnuFileApri").isEnabled());
  EXPECT_FALSE(Trova<QAction>(*finestra, "mnuFileChiudi").isEnabled());
}

}  // namespace
}  // namespace torvi
