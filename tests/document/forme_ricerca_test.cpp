#include <gtest/gtest.h>

#include <QComboBox>
#include <QMainWindow>
#include <QRadioButton>

#include "comune/tastiera.h"
#include "document/archivio_di_prova.h"
#include "document/frmRicerca.h"
#include "document/frmSceltaDoc.h"

namespace torvi {
namespace {

// Documents 1 to 4; the window of the program behind the forms.
class FormeRicerca : public testing::Test {
 protected:
  FormeRicerca() {
    for (int i = 0; i < 2; ++i) prova.Metti("TabDocumento", {{"IDRifBibl", 1}});
    finestra.show();
  }
  bool Sceglie(const Passo& uso) {
    bool scelto = false;
    Operatore::Esegue(
        [&] { scelto = frmSceltaDoc::ChiediDocumento(stato, prova.dialoghi, &finestra); }, {uso});
    return scelto;
  }
  int Cerca(const Passo& uso) {
    frmRicerca forma(stato, prova.dialoghi, &finestra);
    int esito = -1;
    Operatore::Esegue([&] { esito = forma.exec(); }, {uso});
    return esito;
  }

  ArchivioDiProva prova;
  StatoGlobale& stato = prova.stato;
  QMainWindow finestra;
};

TEST_F(FormeRicerca, ChoosesADocumentByKeysAlone) {
  stato.ModoRicerca = stato.DocumentoNuovo = true;
  stato.TestoTraduzione = "di un altro";
  EXPECT_TRUE(Sceglie([this](QWidget& modale) {
    EXPECT_EQ(stato.IDDocumentoScelto, "1");
    EXPECT_FALSE(Trova<QPushButton>(modale, "cmdCancella").isEnabled());
    Batti("{Down}{Down}{Return}");
  }));
  EXPECT_EQ(stato.IDDocumentoScelto, "3");
  EXPECT_FALSE(stato.ModoRicerca || stato.DocumentoNuovo);
  EXPECT_EQ(stato.TestoTraduzione, "");
  EXPECT_FALSE(Sceglie([](QWidget&) { Batti("{Esc}"); }));
  EXPECT_TRUE(Sceglie([](QWidget& modale) { Clic(modale, "cmdEdita"); }));
  EXPECT_EQ(stato.IDDocumentoScelto, "1");
}

TEST_F(FormeRicerca, DeletesTheSelectedDocumentsAndStaysOpen) {
  frmSceltaDoc::ApriCancellazione(stato, prova.dialoghi, &finestra);
  frmSceltaDoc::ApriCancellazione(stato, prova.dialoghi, &finestra);
  const auto forme = finestra.findChildren<frmSceltaDoc*>();
  ASSERT_EQ(forme.size(), 1);
  const QPointer<frmSceltaDoc> forma = forme.first();
  EXPECT_FALSE(forma->isModal());
  QApplication::setActiveWindow(forma);
  Batti("{Down}{Shift+Down}{Return}");  // nothing to edit in this mode
  prova.dialoghi.AttendeDomanda("Confermi cancellazione?", "Attenzione!", Pulsanti::SiNo,
                                Risposta::Si);
  Clic(*forma, "cmdCancella");
  EXPECT_EQ(Linee(Trova<QListWidget>(*forma, "lstDocumento")).join('|'),
            "1 --> 2001A0012|4 --> 2001A0013");
  EXPECT_EQ(prova.Metti("TabDocumento", {{"IDRifBibl", 1}}), 5);  // never a number twice
  Clic(*forma, "cmdCancella");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(), "Nessuna selezione effettuata");
  Trova<QListWidget>(*forma, "lstDocumento").setFocus();
  Batti("{Ctrl+A}");
  prova.dialoghi.AttendeDomanda("Confermi cancellazione?", "Attenzione!", Pulsanti::SiNo,
                                Risposta::Si);
  Clic(*forma, "cmdCancella");
  EXPECT_EQ(Linee(Trova<QListWidget>(*forma, "lstDocumento")).join('|'), "5 --> 2001A0012");
  // The rows that belonged to the documents stay.
  EXPECT_FALSE(stato.DbArchivio.OpenRecordset("LegameDocTesto").Eof());
  const QString altra = prova.cartella.Mdb("B01.MDB");
  ASSERT_TRUE(QFile::copy(stato.DbArchivio.Name(), altra));
  stato.DbArchivio.Close();
  stato.DbArchivio = OpenDatabase(altra);
  Trova<QListWidget>(*forma, "lstDocumento").selectAll();
  prova.dialoghi.AttendeDomanda("Confermi cancellazione?", "Attenzione!", Pulsanti::SiNo,
                                Risposta::Si);
  Clic(*forma, "cmdCancella");
  EXPECT_EQ(prova.dialoghi.UltimoMessaggio(),
            "Error number: 3420\rL'elenco è di un archivio che non è più quello aperto: va chiuso "
            "e riaperto.");
  EXPECT_EQ(RigheTesto(stato.DbArchivio, "TabDocumento", {"IDDocumento"}), QStringList("5"));
  EXPECT_EQ(Linee(Trova<QListWidget>(*forma, "lstDocumento")).join('|'), "5 --> 2001A0012");
  Clic(*forma, "cmdAnnulla");
  EXPECT_TRUE(QTest::qWaitFor([&] { return forma.isNull(); }));
}

TEST_F(FormeRicerca, ANewArchiveHasNothingToChoose) {
  stato.DbArchivio.Execute("delete * from TabDocumento");
  EXPECT_FALSE(frmSceltaDoc::ChiediDocumento(stato, prova.dialoghi, &finestra));
  frmSceltaDoc::ApriCancellazione(stato, prova.dialoghi, &finestra);
  stato.DbArchivio.Close();
  EXPECT_FALSE(frmSceltaDoc::ChiediDocumento(stato, prova.dialoghi, &finestra));
  EXPECT_EQ(prova.dialoghi.Messaggi().join('|'),
            "Nessun documento presente!|Archivio nuovo: inserire un documento nuovo!|"
            "Nessun documento presente!|"
            "Archivio nuovo: non è possibile cancellare nessun documento!|"
            "Archivio nuovo: inserire un documento nuovo!");
  EXPECT_TRUE(finestra.findChildren<frmSceltaDoc*>().isEmpty());
}

TEST_F(FormeRicerca, SearchesByKeysAlone) {
  stato.SqlRicerca = "vecchia";
  stato.ListaRicerca = {9};
  const int esito = Cerca([this](QWidget& modale) {
    EXPECT_TRUE(stato.SqlRicerca.isEmpty() && stato.ListaRicerca.empty());
    auto& interroga = Trova<QPushButton>(modale, "cmdInterroga");
    Batti("t");  // the one field that begins so
    EXPECT_EQ(Trova<QComboBox>(modale, "ComboCampo").currentText(), "Titolo");
    Batti("{Return}d'altro{Enter}");
    EXPECT_EQ(prova.dialoghi.UltimoMessaggio(),
              "Non esistono record che soddisfano la ricerca impostata");
    EXPECT_FALSE(interroga.isEnabled());
    Batti("{Ctrl+A}TESTO 0{Enter}");
    EXPECT_EQ(Linee(Trova<QListWidget>(modale, "lstRisultato")).join('|'), "1 --> 2001A0012 ?");
    QTest::keyClick(&modale, Qt::Key_I, Qt::AltModifier);
  });
  EXPECT_EQ(esito, QDialog::Accepted);
  EXPECT_TRUE(stato.ModoRicerca);
  EXPECT_EQ(stato.IDDocumentoScelto, "1");
  EXPECT_EQ(stato.ListaRicerca, std::vector<qint16>{1});
}

TEST_F(FormeRicerca, ProposesThePartByTheField) {
  stato.ModoRicerca = true;
  EXPECT_EQ(
      Cerca([this](QWidget& modale) {
        auto& campo = Trova<QComboBox>(modale, "ComboCampo");
        auto& parte = Trova<QComboBox>(modale, "ComboParte");
        const auto mostra = [&parte]() -> QString {
          return parte.currentText() + (parte.isEnabled() ? "" : " bloccata");
        };
        EXPECT_FALSE(parte.isEnabled());
        campo.setCurrentText("CPer");
        Trova<QRadioButton>(modale, "optParte").click();
        EXPECT_EQ(mostra(), "Tutte");  // the field was chosen before
        for (const auto& [voce, proposta] :
             {std::pair{"Fascicolo", "Almeno una bloccata"},
              std::pair{"Data pubblicazione", "Almeno una bloccata"}, std::pair{"Nota", "Tutte"},
              std::pair{"CPer", "Almeno una bloccata"}, std::pair{"Fonte (testo)", "Tutte"},
              std::pair{"Fonte (TP)", "Almeno una bloccata"}}) {
          campo.setCurrentText(voce);
          EXPECT_EQ(mostra(), proposta) << voce;
        }
        Trova<QRadioButton>(modale, "optIntero").click();
        Trova<QRadioButton>(modale, "optParte").click();
        parte.setCurrentIndex(2);
        campo.setCurrentText("Titolo");
        Trova<QLineEdit>(modale, "txtParola").setText("0 testo");
        parte.setCurrentIndex(0);
        Clic(modale, "cmdRicerca");
        EXPECT_EQ(Linee(Trova<QListWidget>(modale, "lstRisultato")).join('|'), "1 --> 2001A0012 ?");
        Trova<QLineEdit>(modale, "txtParola").clear();
        Clic(modale, "cmdRicerca");
        EXPECT_EQ(prova.dialoghi.Messaggi(), QStringList("Informazioni mancanti!"));
        EXPECT_TRUE(Trova<QPushButton>(modale, "cmdInterroga").isEnabled());
        modale.close();
      }),
      QDialog::Rejected);
  EXPECT_FALSE(stato.ModoRicerca);
  EXPECT_FALSE(stato.SqlRicerca.isEmpty());
}

}  // namespace
}  // namespace torvi
