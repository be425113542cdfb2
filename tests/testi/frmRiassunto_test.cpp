#include "testi/frmRiassunto.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QPlainTextEdit>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/finestre.h"

namespace torvi {
namespace {

// A button by its letter, to the end of what it does: it stays down for a moment.
void Premi(QWidget& forma, const char* pulsante, Qt::Key lettera) {
  const auto& premuto = Trova<QPushButton>(forma, pulsante);
  QTest::keyClick(&forma, lettera, Qt::AltModifier);
  EXPECT_TRUE(premuto.isDown());
  EXPECT_TRUE(QTest::qWaitFor([&premuto] { return !premuto.isDown(); }));
}

class FormaRiassunto : public testing::Test {
 protected:
  FormaRiassunto() {
    stato.TipoTestoRiassunto = QStringLiteral("0");
    stato.TestoRiassunto = QStringLiteral("Il testo iniziale.");
  }
  // Opens the form, hands it over and gives back how it was left.
  int Apre(const std::function<void(frmRiassunto&, QPlainTextEdit&)>& uso) {
    frmRiassunto forma(stato, dialoghi, dizionari);
    int esito = -1;
    Operatore::Esegue([&] { esito = forma.exec(); }, {[&](QWidget&) {
                        uso(forma, Trova<QPlainTextEdit>(forma, "txtRiassunto"));
                      }});
    return esito;
  }

  CartellaDiProva cartella;
  StatoGlobale stato;
  DialoghiScritti dialoghi;
  Dizionari dizionari{cartella.Percorso()};
};

TEST_F(FormaRiassunto, EachTypeHasItsTitleLabelAndBuffer) {
  struct Caso {
    const char* tipo;
    const char* titolo;
    const char* etichetta;
    QString StatoGlobale::*testo;
  };
  for (const Caso& caso :
       {Caso{"0", "Testo riassunto", "Riassunto", &StatoGlobale::TestoRiassunto},
        Caso{"1", "Testo sommario", "Sommario", &StatoGlobale::TestoSommario},
        Caso{"2", "Testo 'In tema di'", "In tema di", &StatoGlobale::TestoInTemaDi},
        Caso{"3", "Testo 'English abstract'", "English abstract",
             &StatoGlobale::TestoEnglishAbstract}}) {
    stato.TipoTestoRiassunto = QLatin1String(caso.tipo);
    stato.*caso.testo = QStringLiteral("uno");
    const int esito = Apre([&caso](frmRiassunto& forma, QPlainTextEdit& testo) {
      EXPECT_EQ(forma.windowTitle(), caso.titolo);
      EXPECT_EQ(Trova<QLabel>(forma, "Label1").text(), caso.etichetta);
      EXPECT_EQ(testo.toPlainText(), "uno");
      QTest::keyClicks(&testo, QStringLiteral("due "));
      QTest::keyClick(&forma, Qt::Key_E, Qt::AltModifier);
    });
    EXPECT_EQ(esito, QDialog::Accepted);
    EXPECT_EQ(stato.*caso.testo, "due uno") << caso.tipo;
  }
  stato.TipoTestoRiassunto = QStringLiteral("4");
  EXPECT_EQ(NumeroErrore([this] { const frmRiassunto forma(stato, dialoghi, dizionari); }), 5);
}

TEST_F(FormaRiassunto, ShowsItsCaptionsAndTheLengthAsTyped) {
  stato.TestoRiassunto = QStringLiteral("a\r\nb");
  Apre([](frmRiassunto& forma, QPlainTextEdit& testo) {
    const auto& conteggio = Trova<QLabel>(forma, "lblConteggio");
    EXPECT_EQ(conteggio.text(), "4");
    QTest::keyClick(&testo, Qt::Key_Return);
    EXPECT_EQ(conteggio.text(), "6");
    QTest::keyClick(&testo, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(conteggio.text(), "8");
    testo.insertPlainText(QStringLiteral("\U0001F600"));
    EXPECT_EQ(conteggio.text(), "10");
    EXPECT_EQ(Trova<QLabel>(forma, "Label2").text() + Trova<QLabel>(forma, "Label3").text(),
              "N. caratteri: Max = 2500");
    QStringList scritte;
    for (const auto* pulsante : forma.findChildren<QPushButton*>()) scritte += pulsante->text();
    EXPECT_EQ(scritte.join('|'), "&Ortografico|&Grammaticale|&Undo|&Esci e salva|&Abbandona");
    forma.reject();
  });
}

TEST_F(FormaRiassunto, LeavesTheTextAlone) {
  for (const Qt::Key tasto : {Qt::Key_Escape, Qt::Key_A}) {
    const int esito = Apre([tasto](frmRiassunto& forma, QPlainTextEdit& testo) {
      testo.insertPlainText(QStringLiteral("altro"));
      QTest::keyClick(&forma, tasto,
                      tasto == Qt::Key_A ? Qt::AltModifier : Qt::KeyboardModifier::NoModifier);
    });
    EXPECT_EQ(esito, QDialog::Rejected);
    EXPECT_EQ(stato.TestoRiassunto, "Il testo iniziale.");
  }
}

TEST_F(FormaRiassunto, StoresWhatWasTypedOrPastedOnOneLine) {
  struct Caso {
    QString incollato;
    QString salvato;
  };
  const QString lungo(10000, QLatin1Char('x'));
  for (const Caso& caso : {Caso{"primo.\r\nSecondo", "primo.Secondo"},
                           {"primo.\n\nSecondo", "primo.Secondo"},
                           {QStringLiteral("a\tb\u00A0c \U0001F600 \"'*?["), {}},
                           {lungo, {}},
                           {QStringLiteral(""), QStringLiteral("")}}) {
    Apre([&caso](frmRiassunto& forma, QPlainTextEdit& testo) {
      testo.selectAll();
      testo.insertPlainText(caso.incollato);
      QTest::keyClick(&forma, Qt::Key_E, Qt::AltModifier);
    });
    EXPECT_EQ(stato.TestoRiassunto, caso.salvato.isNull() ? caso.incollato : caso.salvato);
  }
}

TEST_F(FormaRiassunto, UndoGoesBackToTheTextAtTheOpening) {
  Apre([](frmRiassunto& forma, QPlainTextEdit& testo) {
    testo.setPlainText(QStringLiteral("altro"));
    Premi(forma, "cmdUndo", Qt::Key_U);
    EXPECT_EQ(testo.toPlainText(), "Il testo iniziale.");
    testo.undo();
    EXPECT_EQ(testo.toPlainText(), "altro");
    forma.reject();
  });
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Ripristinato testo originale!");
  EXPECT_EQ(dialoghi.Parole().last().icona, Icona::Informazione);
}

}  // namespace
}  // namespace torvi
