#include "shell/finestra_dialoghi.h"

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QInputDialog>

#include "archive/errore.h"
#include "comune/cartella_di_prova.h"
#include "comune/finestre.h"

namespace torvi {
namespace {

class FinestraDialoghi : public testing::Test {
 protected:
  FinestraDialoghi() { finestra.show(); }

  [[nodiscard]] RichiestaFile Richiesta() const {
    return {.titolo = "Nuovo archivio",
            .filtro = "Database file (*.mdb)|*.mdb",
            .estensione = "mdb",
            .cartella = cartella.Percorso() + "/mdb"};
  }

  const CartellaDiProva cartella;
  QMainWindow finestra;
  DialoghiFinestra dialoghi{finestra};
};

TEST_F(FinestraDialoghi, AnswersByButtonLetterAndEscape) {
  struct Caso {
    Pulsanti pulsanti;
    const char* didascalie;
    Qt::Key tasto;
    Risposta risposta;
  };
  for (const Caso& caso : {
           Caso{Pulsanti::OkAnnulla, "OK|Annulla", Qt::Key_Return, Risposta::Ok},
           Caso{Pulsanti::OkAnnulla, "OK|Annulla", Qt::Key_Escape, Risposta::Annulla},
           Caso{Pulsanti::SiNo, "Sì|No", Qt::Key_Return, Risposta::Si},
           Caso{Pulsanti::SiNo, "Sì|No", Qt::Key_Escape, Risposta::No},
           Caso{Pulsanti::SiNo, "Sì|No", Qt::Key_N, Risposta::No},
           Caso{Pulsanti::SiNo, "Sì|No", Qt::Key_S, Risposta::Si},
           Caso{Pulsanti::SiNoAnnulla, "Sì|No|Annulla", Qt::Key_Return, Risposta::Si},
           Caso{Pulsanti::SiNoAnnulla, "Sì|No|Annulla", Qt::Key_N, Risposta::No},
           Caso{Pulsanti::SiNoAnnulla, "Sì|No|Annulla", Qt::Key_Escape, Risposta::Annulla},
       }) {
    Risposta risposta = Risposta::Ok;
    Operatore::Esegue(
        [&] { risposta = dialoghi.Domanda("<b>Sicuro</b>?", {}, caso.pulsanti); },
        {Riquadro(QStringLiteral("TorviEditor|<b>Sicuro</b>?|") + caso.didascalie, caso.tasto)});
    EXPECT_EQ(risposta, caso.risposta) << caso.didascalie << ' ' << caso.tasto;
  }
}

TEST_F(FinestraDialoghi, ABoxFitsTheScreenWhateverItSays) {
  for (const QString& testo : {QStringLiteral("parola ").repeated(3000), QString(20000, u'x'),
                               QStringLiteral("riga\n").repeated(4000)}) {
    Operatore::Esegue([&] { dialoghi.Messaggio(testo, {}, Icona::Nessuna); },
                      {[](QWidget& riquadro) {
                        // What an operator typed may look like a tag.
                        EXPECT_EQ(dynamic_cast<QMessageBox&>(riquadro).textFormat(), Qt::PlainText);
                        const QSize schermo = riquadro.screen()->availableSize();
                        EXPECT_LE(riquadro.height(), schermo.height());
                        EXPECT_LE(riquadro.width(), schermo.width());
                        QTest::keyClick(&riquadro, Qt::Key_Return);
                      }});
  }
}

// It gets its focus back from the box.
TEST_F(FinestraDialoghi, ABoxBelongsToTheFormThatIsLeftForIt) {
  QDialog forma(&finestra);
  forma.show();
  forma.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&forma));
  const Passo risponde = [&forma](QWidget& riquadro) {
    EXPECT_EQ(riquadro.parentWidget(), &forma);
    QTest::keyClick(&riquadro, Qt::Key_Return);
  };
  Operatore::Esegue(
      [this] {
        EXPECT_EQ(dialoghi.Domanda("Sicuro?", {}, Pulsanti::SiNo), Risposta::Si);
        dialoghi.Messaggio("Fatto", {}, Icona::Nessuna);
      },
      {risponde, risponde});
}

TEST_F(FinestraDialoghi, TakesATypedText) {
  QString testo;
  const auto chiede = [&] { testo = dialoghi.Immissione("Nome:", "Nuovo"); };
  const auto scrive = [](Qt::Key tasto) {
    return [tasto](QWidget& modale) {
      EXPECT_EQ(modale.windowTitle(), "Nuovo");
      EXPECT_EQ(dynamic_cast<QInputDialog&>(modale).labelText(), "Nome:");
      QTest::keyClicks(modale.findChild<QLineEdit*>(), " a b");
      QTest::keyClick(&modale, tasto);
    };
  };
  Operatore::Esegue(chiede, {scrive(Qt::Key_Return)});
  EXPECT_EQ(testo, " a b");
  Operatore::Esegue(chiede, {scrive(Qt::Key_Escape)});
  EXPECT_EQ(testo, "");
}

TEST_F(FinestraDialoghi, SpeaksItalianInTheFileDialog) {
  const auto guarda = [this](QWidget& modale) {
    const auto& scelta = dynamic_cast<QFileDialog&>(modale);
    EXPECT_EQ(scelta.windowTitle(), "Nuovo archivio");
    EXPECT_EQ(scelta.labelText(QFileDialog::Accept), "&Apri");
    EXPECT_EQ(scelta.labelText(QFileDialog::Reject), "Annulla");
    EXPECT_EQ(scelta.labelText(QFileDialog::FileName), "&Nome file:");
    EXPECT_EQ(scelta.nameFilters(), QStringList{"Database file (*.mdb)"});
    EXPECT_EQ(scelta.directory().path(), cartella.Percorso() + "/mdb");
    EXPECT_EQ(Trova<QLineEdit>(modale, "fileNameEdit").text(), "");
    QTest::keyClick(&modale, Qt::Key_Escape);
  };
  EXPECT_EQ(NumeroErrore([&] {
              Operatore::Esegue([&] { std::ignore = dialoghi.ScegliFile(Richiesta()); }, {guarda});
            }),
            32755);
}

TEST_F(FinestraDialoghi, OpensOnlyWhatIsThere) {
  ScriviByte(cartella.Mdb("Presente.MDB"), "x");
  RichiestaFile richiesta = Richiesta();
  richiesta.deveEsistere = true;
  QString scelto;
  Operatore::Esegue([&] { scelto = dialoghi.ScegliFile(richiesta); },
                    {ScriveFile("assente"),
                     Riquadro("Nuovo archivio|" + cartella.Mdb("assente.mdb") +
                              "\nIl file non esiste. Verificare che il nome sia corretto.|OK"),
                     ScriveFile("presente")});
  EXPECT_EQ(scelto, cartella.Mdb("Presente.MDB"));
}

TEST_F(FinestraDialoghi, AsksBeforeANewNameOnly) {
  ScriviByte(cartella.Mdb("presente.mdb"), "x");
  RichiestaFile richiesta = Richiesta();
  richiesta.chiedeSeCreare = true;
  const QString domanda =
      "Nuovo archivio|" + cartella.Mdb("nuova.mdb") + "\nIl file non esiste. Crearlo?|Sì|No";
  QString scelto;
  const auto scegli = [&] { scelto = dialoghi.ScegliFile(richiesta); };
  Operatore::Esegue(scegli, {ScriveFile("nuova"), Riquadro(domanda, Qt::Key_Escape),
                             ScriveFile("nuova"), Riquadro(domanda)});
  EXPECT_EQ(scelto, cartella.Mdb("nuova.mdb"));
  Operatore::Esegue(scegli, {ScriveFile("presente.mdb")});
  EXPECT_EQ(scelto, cartella.Mdb("presente.mdb"));
}

}  // namespace
}  // namespace torvi
