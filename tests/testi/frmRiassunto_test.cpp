#include "testi/frmRiassunto.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

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

// A button by the blank bar, to the end of what it does, forms that it opens or closes included.
void PremiSpazio(QWidget& forma, const char* pulsante) {
  QTest::keyClick(&Trova<QPushButton>(forma, pulsante), Qt::Key_Space);
}

void PremiControllo(QWidget& editore, Qt::Key lettera) {
  PremiSpazio(editore,
              lettera == Qt::Key_O ? "cmdControlloOrtografico" : "cmdControlloGrammaticale");
}

// What the correction form shows of the text, and what it would put there.
std::string InMano(const QWidget& correzione) {
  const auto evidenze = Trova<QPlainTextEdit>(correzione, "txtContesto").extraSelections();
  const QString inMano = evidenze.value(0).cursor.selectedText() + QStringLiteral(" > ") +
                         Trova<QLineEdit>(correzione, "txtSostituzione").text();
  return inMano.toStdString();
}

void Batti(QWidget& correzione, const QString& testo, Qt::Key fine = Qt::Key_Return) {
  auto& sostituzione = Trova<QLineEdit>(correzione, "txtSostituzione");
  QTest::keyClicks(&sostituzione, testo);
  QTest::keyClick(&sostituzione, fine);
}

QString Sottolineate(const QPlainTextEdit& testo) {
  QStringList parole;
  for (QTextBlock riga = testo.document()->begin(); riga.isValid(); riga = riga.next()) {
    for (const QTextLayout::FormatRange& tratto : riga.layout()->formats()) {
      if (tratto.format.underlineStyle() != QTextCharFormat::WaveUnderline) continue;
      parole += riga.text().mid(tratto.start, tratto.length);
    }
  }
  return parole.join(u'|');
}

class FormaRiassunto : public testing::Test {
 protected:
  FormaRiassunto() {
    stato.TipoTestoRiassunto = "0";
    stato.TestoRiassunto = "Il testo iniziale.";
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
  // Opens the form on a text, runs a check by its letter and gives back the text left by it.
  QString Controlla(const QString& testo, Qt::Key lettera, const Passo& correzione) {
    stato.TestoRiassunto = testo;
    frmRiassunto forma(stato, dialoghi, dizionari);
    std::deque<Passo> passi = {[lettera](QWidget& editore) {
      PremiControllo(editore, lettera);
      PremiSpazio(editore, "cmdEsci");
    }};
    if (correzione) passi.push_back(correzione);
    Operatore::Esegue([&forma] { forma.exec(); }, passi);
    return stato.TestoRiassunto;
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
    stato.TipoTestoRiassunto = caso.tipo;
    stato.*caso.testo = "uno";
    const int esito = Apre([&caso](frmRiassunto& forma, QPlainTextEdit& testo) {
      EXPECT_EQ(forma.windowTitle(), caso.titolo);
      EXPECT_EQ(Trova<QLabel>(forma, "Label1").text(), caso.etichetta);
      EXPECT_EQ(testo.toPlainText(), "uno");
      QTest::keyClicks(&testo, "due ");
      QTest::keyClick(&forma, Qt::Key_E, Qt::AltModifier);
    });
    EXPECT_EQ(esito, QDialog::Accepted);
    EXPECT_EQ(stato.*caso.testo, "due uno") << caso.tipo;
  }
  stato.TipoTestoRiassunto = "4";
  EXPECT_EQ(NumeroErrore([this] { const frmRiassunto forma(stato, dialoghi, dizionari); }), 5);
}

TEST_F(FormaRiassunto, ShowsItsCaptionsAndTheLengthAsTyped) {
  stato.TestoRiassunto = "a\r\nb";
  Apre([](frmRiassunto& forma, QPlainTextEdit& testo) {
    const auto& conteggio = Trova<QLabel>(forma, "lblConteggio");
    EXPECT_EQ(conteggio.text(), "4");
    QTest::keyClick(&testo, Qt::Key_Return);
    EXPECT_EQ(conteggio.text(), "6");
    QTest::keyClick(&testo, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(conteggio.text(), "8");
    testo.insertPlainText("\U0001F600");
    EXPECT_EQ(conteggio.text(), "10");
    EXPECT_EQ(Trova<QLabel>(forma, "Label2").text() + Trova<QLabel>(forma, "Label3").text(),
              "N. caratteri: Max = 2500");
    QStringList scritte;
    for (const auto* pulsante : forma.findChildren<QPushButton*>()) scritte += pulsante->text();
    EXPECT_EQ(scritte.join('|'), "&Ortografico|&Grammaticale|&Undo|&Esci e salva|&Abbandona");
    forma.done(QDialog::Rejected);
  });
}

// Esc asks first, and only where something would be lost.
TEST_F(FormaRiassunto, LeavesTheTextAlone) {
  Apre([](frmRiassunto& forma, QPlainTextEdit&) { QTest::keyClick(&forma, Qt::Key_Escape); });
  for (const Qt::Key tasto : {Qt::Key_Escape, Qt::Key_A}) {
    const int esito = Apre([this, tasto](frmRiassunto& forma, QPlainTextEdit& testo) {
      testo.insertPlainText("altro");
      if (tasto == Qt::Key_Escape) {
        for (const Risposta risposta : {Risposta::Annulla, Risposta::Ok}) {
          dialoghi.AttendeDomanda("Confermi l'uscita ?", "", Pulsanti::OkAnnulla, risposta);
        }
        forma.close();
        EXPECT_TRUE(forma.isVisible());
      }
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
  const QString lungo(10000, 'x');
  for (const Caso& caso : {Caso{"primo.\r\nSecondo", "primo.Secondo"},
                           {"primo.\n\nSecondo", "primo.Secondo"},
                           {"a\tb\u00A0c \U0001F600 \"'*?[", {}},
                           {lungo, {}},
                           {"", ""}}) {
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
    testo.setPlainText("altro");
    Premi(forma, "cmdUndo", Qt::Key_U);
    EXPECT_EQ(testo.toPlainText(), "Il testo iniziale.");
    testo.undo();
    EXPECT_EQ(testo.toPlainText(), "altro");
    forma.done(QDialog::Rejected);
  });
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Ripristinato testo originale!");
  EXPECT_EQ(dialoghi.Parole().last().icona, Icona::Informazione);
}

TEST_F(FormaRiassunto, CorrectsTheSpellingByKeys) {
  const QString corretto = Controlla(
      "Un provedimento del\r\nprovedimento di Zzorro, zzorro e qqwq.", Qt::Key_O,
      [](QWidget& correzione) {
        EXPECT_EQ(correzione.windowTitle(), "Controllo ortografico: italiano");
        EXPECT_EQ(InMano(correzione), "provedimento > procedimento");
        QTest::keyClicks(&Trova<QLineEdit>(correzione, "txtSostituzione"), "provvedimento");
        Premi(correzione, "cmdSostituisciTutto", Qt::Key_T);
        EXPECT_EQ(InMano(correzione).substr(0, 6), "Zzorro");
        Premi(correzione, "cmdAggiungi", Qt::Key_D);
        EXPECT_EQ(InMano(correzione).substr(0, 6), "zzorro");
        Premi(correzione, "cmdIgnoraTutto", Qt::Key_G);
        PremiSpazio(correzione, "cmdIgnora");
      });
  EXPECT_EQ(corretto, "Un provvedimento delprovvedimento di Zzorro, zzorro e qqwq.");
  EXPECT_EQ(Byte(cartella.Percorso() + "/dizionari/personale-italiano.txt"), "Zzorro\n");
  EXPECT_EQ(dialoghi.Messaggi().join('|'), "Controllo ortografico effettuato!");
  EXPECT_EQ(dialoghi.Parole().last().icona, Icona::Informazione);
}

TEST_F(FormaRiassunto, WhatWasCorrectedBeforeAnEndStays) {
  ScriviByte(cartella.Percorso() + "/dizionari", "no folder");
  const QString corretto = Controlla("perchè poichè finchè", Qt::Key_O, [](QWidget& correzione) {
    const auto& fine = Trova<QPushButton>(correzione, "cmdAnnulla");
    EXPECT_EQ(fine.text(), "&Annulla");
    Batti(correzione, {});
    EXPECT_EQ(fine.text(), "&Chiudi");
    Premi(correzione, "cmdAggiungi", Qt::Key_D);  // cannot be written: still in hand
    EXPECT_EQ(InMano(correzione).substr(0, 7), "poich\u00E8");
    QTest::keyClick(&correzione, Qt::Key_Escape);
  });
  EXPECT_EQ(corretto, "perché poichè finchè");
  EXPECT_TRUE(
      dialoghi.Messaggi().value(0).startsWith("Errore di run-time '75': La parola «poichè»"));
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Controllo ortografico effettuato!");
}

TEST_F(FormaRiassunto, ExplainsTheGrammarAndTakesASuggestion) {
  const QString corretto =
      Controlla("Il danno..  E' una colpa. Cos' è un'altro?", Qt::Key_G, [](QWidget& correzione) {
        EXPECT_EQ(correzione.windowTitle(), "Controllo grammaticale: italiano");
        EXPECT_FALSE(Trova<QPushButton>(correzione, "cmdAggiungi").isVisible());
        EXPECT_EQ(Trova<QLabel>(correzione, "lblSpiegazione").text(),
                  "Il punto fermo è uno solo; i puntini di sospensione sono tre.");
        EXPECT_EQ(InMano(correzione), ".. > .");
        Batti(correzione, {}, Qt::Key_Down);
        EXPECT_EQ(InMano(correzione), ".. > ...");
        Batti(correzione, {});
        EXPECT_EQ(InMano(correzione), "   >  ");
        EXPECT_EQ(Trova<QListWidget>(correzione, "lstSuggerimenti").item(0)->text(), "·");
        Batti(correzione, {});
        EXPECT_EQ(InMano(correzione), "E' > È");
        Batti(correzione, {});
        Premi(correzione, "cmdIgnora", Qt::Key_I);
        EXPECT_EQ(InMano(correzione), "un' > un ");
        PremiSpazio(correzione, "cmdSostituisci");
      });
  EXPECT_EQ(corretto, "Il danno... È una colpa. Cos' è un altro?");
  EXPECT_EQ(dialoghi.Messaggi().join('|'), "Controllo grammaticale effettuato!");
}

TEST_F(FormaRiassunto, AsksWhatToDoWithATextThatComesBackEmpty) {
  const QString domanda = "Testo con correzioni perso: vuoi ripristinare il testo originale?";
  for (const Risposta risposta : {Risposta::Si, Risposta::No}) {
    dialoghi.AttendeDomanda(domanda, "Attenzione!", Pulsanti::SiNo, risposta);
    const QString corretto = Controlla(
        "perchè", risposta == Risposta::Si ? Qt::Key_O : Qt::Key_G, [](QWidget& correzione) {
          QTest::keyClick(&Trova<QLineEdit>(correzione, "txtSostituzione"), Qt::Key_Delete);
          Batti(correzione, {});
        });
    EXPECT_EQ(corretto, risposta == Risposta::Si ? "perchè" : "");
  }
  dialoghi.AttendeDomanda(domanda, "Attenzione!", Pulsanti::SiNo, Risposta::Si);
  EXPECT_EQ(Controlla({}, Qt::Key_O, {}), "");
}

TEST_F(FormaRiassunto, UnderlinesWhatIsMisspelt) {
  stato.TestoRiassunto = "Il provedimento";
  frmRiassunto forma(stato, dialoghi, dizionari);
  const auto& testo = Trova<QPlainTextEdit>(forma, "txtRiassunto");
  Operatore::Esegue([&forma] { forma.exec(); },
                    {[&testo](QWidget& editore) {
                       EXPECT_EQ(Sottolineate(testo), "provedimento");
                       QTest::keyClicks(editore.focusWidget(), "Zzorro ");
                       EXPECT_EQ(Sottolineate(testo), "Zzorro|provedimento");
                       PremiControllo(editore, Qt::Key_O);
                       EXPECT_EQ(Sottolineate(testo), "provedimento");
                       PremiSpazio(editore, "cmdAbbandona");
                     },
                     [](QWidget& correzione) {
                       Premi(correzione, "cmdIgnoraTutto", Qt::Key_G);
                       QTest::keyClick(&correzione, Qt::Key_Escape);
                     }});
}

TEST_F(FormaRiassunto, TheAbstractInEnglishHasItsOwnDictionary) {
  stato.TipoTestoRiassunto = "3";
  stato.TestoEnglishAbstract = "The judge and the giudice";
  const frmRiassunto forma(stato, dialoghi, dizionari);
  EXPECT_EQ(Sottolineate(Trova<QPlainTextEdit>(forma, "txtRiassunto")), "giudice");
}

TEST_F(FormaRiassunto, WithoutADictionaryOnlyTheSpellingIsMissing) {
  Dizionari nessuno(cartella.Percorso(), cartella.Percorso());
  stato.TestoRiassunto = "Il provedimento";
  frmRiassunto forma(stato, dialoghi, nessuno);
  auto& testo = Trova<QPlainTextEdit>(forma, "txtRiassunto");
  Operatore::Esegue([&forma] { forma.exec(); }, {[&](QWidget& editore) {
                      EXPECT_EQ(Sottolineate(testo), "");
                      EXPECT_TRUE(Trova<QLabel>(editore, "lblDizionario").isVisible());
                      EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
                      QTest::keyClicks(&testo, "Altro ");
                      PremiControllo(editore, Qt::Key_O);
                      EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith(
                          "Errore di run-time '53': Manca il dizionario italiano"));
                      EXPECT_EQ(testo.toPlainText(), "Altro Il provedimento");
                      PremiControllo(editore, Qt::Key_G);
                      PremiSpazio(editore, "cmdAbbandona");
                    }});
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Controllo grammaticale effettuato!");
}

}  // namespace
}  // namespace torvi
