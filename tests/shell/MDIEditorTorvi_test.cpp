#include "shell/MDIEditorTorvi.h"

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QStatusBar>

#include "archive/schema.h"
#include "comune/cartella_di_prova.h"
#include "comune/tastiera.h"
#include "comune/tavole.h"
#include "shell/avvio.h"

namespace torvi {
namespace {

// The tree as the operator sees it: control, caption and, for a separator, a dash.
void Descrivi(const QMenu& menu, const QString& rientro, QStringList& righe) {
  righe += rientro + menu.objectName() + " " + menu.title();
  for (const QAction* voce : menu.actions()) {
    if (voce->menu() != nullptr) {
      Descrivi(*voce->menu(), rientro + " ", righe);
    } else {
      righe +=
          rientro + " " + voce->objectName() + " " + (voce->isSeparator() ? "-" : voce->text());
    }
  }
}

// Which of the entries with a state can be used, one sign each: a letter or a dash.
QString Abilitati(const QWidget& finestra) {
  static constexpr std::pair<const char*, char> kVoci[] = {
      {"mnuFileApri", 'A'},      {"mnuFileNuovo", 'N'}, {"mnuFileChiudi", 'C'},
      {"mnuAggiornamento", 'G'}, {"mnuFinestra", 'F'},  {"mnuStampa", 'S'},
      {"mnuEsporta", 'E'},       {"mnuUtilita", 'U'}};
  QString segni;
  for (const auto& [nome, segno] : kVoci) {
    const auto* menu = finestra.findChild<QMenu*>(nome);
    const auto* voce = finestra.findChild<QAction*>(nome);
    const bool abilitato =
        menu != nullptr ? menu->menuAction()->isEnabled() : voce != nullptr && voce->isEnabled();
    segni += abilitato ? segno : '-';
  }
  return segni;
}

const QString kEsci = "TorviEditor|Confermi l'uscita ?|OK|Annulla";

class Finestra : public testing::Test {
 protected:
  Finestra() {
    PreparaStato(stato, cartella.Percorso());
    finestra = std::make_unique<MDIEditorTorvi>(stato);
    finestra->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }

  void ApriConsegna() {
    stato = cartella.StatoConConsegna();
    finestra->ImpostaFase(FaseMenu::ArchivioAperto);
  }
  void Scegli(const char* voce, std::deque<Passo> passi = {}) const {
    Operatore::Esegue([&] { Trova<QAction>(*finestra, voce).trigger(); }, std::move(passi));
    if (!finestra->isVisible()) return;
    finestra->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  }
  const CartellaDiProva cartella;
  StatoGlobale stato;
  std::unique_ptr<MDIEditorTorvi> finestra;
};

TEST_F(Finestra, ShowsTheWholeMenuTree) {
  EXPECT_EQ(finestra->windowTitle(), "Editore Torvi");
  QStringList righe;
  for (const QAction* voce : finestra->menuBar()->actions()) Descrivi(*voce->menu(), {}, righe);
  EXPECT_EQ(righe.join('\n').toStdString() + '\n', Dati("menu.txt"));
}

TEST_F(Finestra, SetsTheStateOfTheProgramAtStart) {
  EXPECT_EQ(stato.PasswordRiservata, "$kavo$");
  EXPECT_EQ(Abilitati(*finestra), "AN-----U");
  EXPECT_TRUE(Trova<QAction>(*finestra, "mnuInterrogaCatalogo").isEnabled());
  Scegli("mnuInterrogaCatalogo");
  EXPECT_EQ(finestra->windowTitle(), "Editore Torvi");
}

TEST_F(Finestra, FollowsTheArchiveWithItsMenus) {
  cartella.NuovaConsegna("A01.MDB");
  Scegli("mnuFileApri", {ScriveFile("a01")});
  const QString titolo = "Torvi Editor (" + cartella.Mdb("A01.MDB") + ")";
  EXPECT_EQ(finestra->windowTitle(), titolo);
  EXPECT_EQ(Abilitati(*finestra), "--CGFSEU");
  Scegli("mnuAggiornamentoNuovo");
  EXPECT_EQ(Abilitati(*finestra), "--C-F---");
  EXPECT_EQ(Trova<QLabel>(*finestra, "statoDocumento").text(),
            "Documento 1: nuovo, non modificato");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
  EXPECT_EQ(Abilitati(*finestra), "--CGFSEU");
  Scegli("mnuFileChiudi");
  EXPECT_EQ(finestra->windowTitle(), titolo);
  EXPECT_EQ(Abilitati(*finestra), "AN-----U");
  EXPECT_FALSE(stato.DbArchivio.Aperto());
}

// Leaving the document enables its menus, whatever became of the archive.
TEST_F(Finestra, ClosesTheArchiveUnderADocument) {
  ApriConsegna();
  Scegli("mnuAggiornamentoNuovo");
  Scegli("mnuFileChiudi");
  EXPECT_EQ(Abilitati(*finestra), "AN------");
  Scegli("mnuFileApri", {ScriveFile("a01")});
  EXPECT_EQ(Abilitati(*finestra), "--C-F---");
  Scegli("mnuFileChiudi");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F3);
  EXPECT_EQ(Abilitati(*finestra), "AN-G-SEU");
  EXPECT_FALSE(stato.DbArchivio.Aperto());
}

TEST_F(Finestra, CancelledOpeningIsToldAndChangesNothing) {
  Scegli("mnuFileApri", {[](QWidget& modale) { QTest::keyClick(&modale, Qt::Key_Escape); },
                         Riquadro("TorviEditor|È stato scelto Annulla.|OK")});
  EXPECT_EQ(finestra->windowTitle(), "Editore Torvi");
  EXPECT_EQ(Abilitati(*finestra), "AN-----U");
}

// A letter that the menus share goes to who can use it.
TEST_F(Finestra, CanBeDrivenByKeysAlone) {
  const auto batti = [this](const QString& tasti, std::deque<Passo> passi) {
    Operatore::Esegue([&tasti] { Batti(tasti); }, std::move(passi));
    finestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(finestra.get()));
  };
  batti("{Alt+F}e", {Riquadro(kEsci, Qt::Key_Escape)});
  ApriConsegna();
  batti("{Alt+A}c", {Riquadro("TorviEditor|Nessun documento presente!|OK"),
                     Riquadro("TorviEditor|Archivio nuovo: non è possibile cancellare nessun "
                              "documento!|OK")});
  batti("{Alt+A}n", {});
  auto* documento = finestra->findChild<frmDocumento*>();
  auto& titolo = Trova<QPlainTextEdit>(*documento, "txtTitolo");
  titolo.setFocus();
  Batti("{Alt+S}");  // the button is hidden, and the menu locked
  EXPECT_TRUE(titolo.hasFocus());
  const auto rifiutato = Riquadro("TorviEditor|periodico non ancora immesso|OK");
  for (int volta = 0; volta < 2; ++volta) batti("{Alt+E}", {rifiutato});
  batti("{F4}", {rifiutato});
  Batti("{Alt+A}");
  EXPECT_EQ(Abilitati(*finestra), "--CGFSEU");
}

TEST_F(Finestra, AListOfDocumentsGoesWithItsArchive) {
  ApriConsegna();
  Aggiungi(stato.DbArchivio, "TabDocumento", {{"LIN", "00"}});
  Scegli("mnuAggiornamentoCancella");
  const QPointer<QDialog> elenco = finestra->findChild<QDialog*>("frmSceltaDoc");
  ASSERT_TRUE(elenco != nullptr && elenco->isVisible());
  Scegli("mnuFileChiudi");
  EXPECT_TRUE(elenco == nullptr || !elenco->isVisible());
}

TEST_F(Finestra, MakesADeliveryAndLeavesItClosed) {
  CreaDatabase(cartella.Mdb("master.mdb"), SchemaArchivio());
  Scegli("mnuFileNuovo", {ScriveFile("b01"),
                          Riquadro("Nuovo archivio|" + cartella.Mdb("b01.mdb") +
                                   "\nIl file non esiste. Crearlo?|Sì|No"),
                          Forma("Informazione consegna", "j{Tab}2{Tab}b01{Tab}7{Return}")});
  EXPECT_EQ(Abilitati(*finestra), "A------U");
  EXPECT_EQ(finestra->windowTitle(), "Editore Torvi");
  EXPECT_EQ(RigheTesto(OpenDatabase(cartella.Mdb("B01.MDB")), "TabInfo",
                       {"Consegna", "IDCentroSpoglio", "NumInizio"}),
            QStringList("B01|J|7"));
}

TEST_F(Finestra, AsksBeforeItEnds) {
  finestra->setAttribute(Qt::WA_DeleteOnClose, false);
  Scegli("mnuFileEsci", {Riquadro(kEsci, Qt::Key_Escape)});
  EXPECT_TRUE(finestra->isVisible());
  // The close box asks the same.
  Operatore::Esegue([&] { finestra->close(); }, {Riquadro(kEsci, Qt::Key_Escape)});
  EXPECT_TRUE(finestra->isVisible());
  Scegli("mnuFileEsci", {Riquadro(kEsci, Qt::Key_Return)});
  EXPECT_FALSE(finestra->isVisible());
}

TEST_F(Finestra, ShowsWhatNoTrapTakesAndGoesOn) {
  ApriConsegna();
  stato.DbArchivio.Execute("delete * from TabInfo");
  Scegli("mnuFormatoASCIIIsis",
         {Riquadro("TorviEditor|Errore di run-time '3021': Nessun record corrente: TabInfo è vuota "
                   "in " +
                   stato.DbArchivio.Name() + "|OK")});
  EXPECT_TRUE(stato.DbArchivio.Aperto());
  EXPECT_EQ(Abilitati(*finestra), "--CGFSEU");
  EXPECT_EQ(finestra->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Finestra, ExportsFromTheMenu) {
  struct Caso {
    const char* voce;
    const char* file;
  };
  ApriConsegna();
  for (const Caso& caso : {Caso{"mnuFormatoASCIIIsis", "lexxdump isis.A01"},
                           Caso{"mnuFormatoASCIICassazione", "lexxdump cassazione.A01"},
                           Caso{"mnuFormatoASCIIStorico", "lexxdump storico.A01"}}) {
    Scegli(caso.voce,
           {Riquadro("Esportazione per ISIS|Controllo presenza fonti?|Sì|No", Qt::Key_N),
            Riquadro("Esportazione|Accodare risultato dell'esportazione?|Sì|No", Qt::Key_Escape),
            Riquadro("TorviEditor|Errore di run-time '3021': Nessun record corrente.|OK")});
    EXPECT_TRUE(QFile::exists(cartella.Dump(caso.file))) << caso.file;
  }
}

// Each print tells that it is done, and the status bar then offers its file.
TEST_F(Finestra, PrintsFromTheMenuAndOffersTheFile) {
  const auto fine = [](const char* testo) {
    return Riquadro(QStringLiteral("TorviEditor|%1|OK").arg(testo));
  };
  const auto chiede = [](const char* parole, Qt::Key tasto) {
    return Riquadro(QString(QLatin1String(parole) + "|Sì|No"), tasto);
  };
  const char* const filtro = "Abstract in inglese|Stampa con filtro per traduzioni titolo?";
  const char* const formato = "TorviEditor|Per formato RTF: yes, per formato HTML: no";
  struct Caso {
    const char* voce;
    const char* file;
    std::deque<Passo> passi;
  };
  const Caso kCasi[] = {
      {"mnuStampaCompleta", "stampaRTF-C-A01.rtf", {fine("Fine stampa")}},
      {"mnuStampaSoloTesti",
       "stampaRTF-T-A01.rtf",
       {chiede(filtro, Qt::Key_N), fine("Fine stampa")}},
      {"mnuStampaProspetto",
       "prospetto A01.rtf",
       {chiede(formato, Qt::Key_S), fine("Fine stampa prospetto")}},
      {"mnuStampaProspetto",
       "prospetto A01.html",
       {chiede(formato, Qt::Key_N), fine("Fine stampa prospetto")}},
      {"mnuStampaConsistenza",
       "consistenza.A01",
       {fine("TotTAbs: 0 --- Num. docc.: 0"), fine("Fine stampa consistenza")}},
      {"mnuUtilitaHTML", "stampaHTML A01.htm", {fine("Fine stampa HTML (consegna A01)")}},
  };
  for (const char* nome : {"/testata new.rtf", "/testata prospetto.rtf"}) {
    ScriviByte(cartella.Percorso() + nome, "{");
  }
  ApriConsegna();
  const auto& offerta = Trova<QWidget>(*finestra, "offertaFile");
  EXPECT_FALSE(offerta.isVisible());
  for (const Caso& caso : kCasi) {
    Scegli(caso.voce, caso.passi);
    EXPECT_TRUE(QFile::exists(cartella.Dump(caso.file))) << caso.file;
    EXPECT_TRUE(offerta.isVisible());
    EXPECT_EQ(Trova<QLabel>(offerta, "nomeFileScritto").text(), caso.file);
  }
}

// The desktop's own program is stood in for.
class Scrivania : public QObject {
  Q_OBJECT

 public:
  Scrivania() { QDesktopServices::setUrlHandler("file", this, "Apre"); }
  ~Scrivania() override { QDesktopServices::unsetUrlHandler("file"); }
  QStringList aperti;

 public Q_SLOTS:
  void Apre(const QUrl& indirizzo) { aperti += indirizzo.toLocalFile(); }
};

TEST_F(Finestra, OpensTheFileThatWasWrittenOrItsFolder) {
  const QString file = cartella.Dump("consistenza.A01");
  ScriviByte(file, "x");
  Scrivania scrivania;
  finestra->DialoghiDellaFinestra().FileScritto(file);
  Clic(*finestra, "cmdApriFile");
  Clic(*finestra, "cmdApriCartella");
  EXPECT_EQ(scrivania.aperti, QStringList({file, cartella.Percorso() + "/dump"}));
  ASSERT_TRUE(QFile::remove(file));
  Operatore::Esegue([&] { Clic(*finestra, "cmdApriFile"); },
                    {Riquadro("TorviEditor|Non si riesce ad aprire " + file + "|OK")});
}

TEST_F(Finestra, ShowsEachErrorFile) {
  struct Caso {
    const char* voce;
    const char* file;
    const char* testo;
  };
  ApriConsegna();
  for (const Caso& caso :
       {Caso{"mnuFileErroriGenerici", "errori.A01", "Errori generici\n\nx\n\n"},
        Caso{"mnuFileErroriClasse", "errClasse.A01", "Errori di classificazione\n\nx\n\n"},
        Caso{"mnuFileErroriFonti", "errFonte.A01", "Errori nelle fonti\n\nx\n\n"}}) {
    ScriviByte(cartella.Dump(caso.file), "x\r\n\r\n");
    Scegli(caso.voce, {[&caso](QWidget& modale) {
             EXPECT_EQ(modale.windowTitle(), "Visualizzazione errori");
             EXPECT_EQ(Trova<QPlainTextEdit>(modale, "txtErrori").toPlainText(), caso.testo);
             EXPECT_TRUE(Trova<QPlainTextEdit>(modale, "txtErrori").isReadOnly());
             EXPECT_EQ(Trova<QPushButton>(modale, "cmdChiudi").text(), "Chiudi");
             Clic(modale, "cmdChiudi");
           }});
  }
}

TEST_F(Finestra, LetsNothingStartDuringALongRun) {
  Dialoghi& dialoghi = finestra->DialoghiDellaFinestra();
  const QAction& esci = Trova<QAction>(*finestra, "mnuFileEsci");
  int scelte = 0;
  QObject::connect(&esci, &QAction::triggered, [&scelte] { ++scelte; });
  {
    const Clessidra clessidra(dialoghi);
    EXPECT_EQ(finestra->cursor().shape(), Qt::WaitCursor);
    dialoghi.Avanzamento("Esportazione", 3, 10);
    const auto& barra = Trova<QProgressBar>(*finestra, "barraAvanzamento");
    EXPECT_TRUE(barra.isVisible());
    EXPECT_EQ(barra.text(), "3 di 10");
    EXPECT_EQ(finestra->statusBar()->currentMessage(), "Esportazione");
    QTest::keyClick(finestra.get(), Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    finestra->close();
    EXPECT_TRUE(finestra->isVisible());
    // A file that is finished in the middle of a batch is offered behind it.
    dialoghi.FileScritto(cartella.Dump("note.A03"));
    EXPECT_FALSE(Trova<QWidget>(*finestra, "offertaFile").isVisible());
    // What the run itself asks can be answered.
    Operatore::Esegue([&] { dialoghi.Messaggio("Fatto"); }, {Riquadro("TorviEditor|Fatto|OK")});
    EXPECT_FALSE(Trova<QProgressBar>(*finestra, "barraAvanzamento").isHidden());
  }
  EXPECT_EQ(scelte, 0);
  EXPECT_TRUE(Trova<QWidget>(*finestra, "offertaFile").isVisible());
  EXPECT_TRUE(Trova<QProgressBar>(*finestra, "barraAvanzamento").isHidden());
  EXPECT_EQ(finestra->cursor().shape(), Qt::ArrowCursor);
  Operatore::Esegue([&] { finestra->close(); }, {Riquadro(kEsci)});
  EXPECT_FALSE(finestra->isVisible());
}

}  // namespace
}  // namespace torvi

#include "MDIEditorTorvi_test.moc"
