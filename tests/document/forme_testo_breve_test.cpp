#include <gtest/gtest.h>

#include <QClipboard>

#include "comune/finestre.h"
#include "document/archivio_di_prova.h"
#include "document/frmHelpTastiFunzione.h"
#include "document/frmNota.h"
#include "document/frmNotaAmb.h"
#include "document/frmTraduzione.h"

namespace torvi {
namespace {

template <typename Forma>
int Apre(ArchivioDiProva& prova, const Passo& uso) {
  Forma forma(prova.stato, prova.dialoghi, 1);
  int esito = -1;
  Operatore::Esegue([&] { esito = forma.exec(); }, {uso});
  return esito;
}

struct Caso {
  int (*apre)(ArchivioDiProva&, const Passo&);
  QString StatoGlobale::*buffer;
  const char* controllo;
  const char* scritte;
  const char* inArchivio;
};
const Caso kCasi[] = {
    {Apre<frmTraduzione>, &StatoGlobale::TestoTraduzione, "txtTraduzione",
     "Testo traduzione|Traduzione|Esci e salva|Abbandona", "testo 3"},
    {Apre<frmNota>, &StatoGlobale::TestoNotaDoc, "txtNotaDoc",
     "Testo nota al documento|Nota al documento|[Per i ritorni a capo usare la barra \"\\\"]|"
     "Esci e salva|Abbandona",
     "testo 5"},
    {Apre<frmNotaAmb>, &StatoGlobale::TestoNota, "txtNota", "Campo nota|Esci e salva|Abbandona",
     "testo 6"},
};

TEST(FormeTestoBreve, StoreWhatWasTypedAndPasted) {
  const QString incollato = QStringLiteral("l'\"à\u00A0€\"\t\\ \U0001F600") + QString(50000, u'x');
  for (const Caso& caso : kCasi) {
    ArchivioDiProva prova;
    const int esito = caso.apre(prova, [&](QWidget& forma) {
      EXPECT_EQ(Scritte(forma), caso.scritte);
      auto& testo = Trova<QPlainTextEdit>(forma, caso.controllo);
      EXPECT_EQ(forma.focusWidget(), &testo);
      EXPECT_EQ(testo.toPlainText(), caso.inArchivio);
      testo.selectAll();
      QGuiApplication::clipboard()->setText(incollato);
      QTest::keySequence(&testo, QKeySequence::Paste);
      QTest::keyClick(&testo, Qt::Key_Return);
      QTest::keyClicks(&testo, "fine");
      QTest::keyClick(&testo, Qt::Key_Tab);
      QTest::keyClick(forma.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(esito, QDialog::Accepted);
    // Only the compiler's note has lines: the save would join the words of the others.
    const bool righe = caso.buffer == &StatoGlobale::TestoNotaDoc;
    EXPECT_EQ(prova.stato.*caso.buffer, incollato + (righe ? "\r\nfine" : " fine"));
    EXPECT_EQ(prova.stato.NotaDocCancellata, caso.buffer == &StatoGlobale::TestoNotaDoc);
  }
}

TEST(FormeTestoBreve, LeaveTheTextAlone) {
  for (const Caso& caso : kCasi) {
    ArchivioDiProva prova;
    prova.stato.*caso.buffer = "prima";
    caso.apre(prova, [](QWidget& forma) { QTest::keyClick(&forma, Qt::Key_Escape); });
    for (const Risposta risposta : {Risposta::Annulla, Risposta::Ok}) {
      prova.dialoghi.AttendeDomanda("Confermi l'uscita ?", "", Pulsanti::OkAnnulla, risposta);
    }
    caso.apre(prova, [](QWidget& forma) {
      QTest::keyClicks(forma.focusWidget(), "altro");
      QTest::keyClick(&forma, Qt::Key_Escape);
      EXPECT_TRUE(forma.isVisible());
      QTest::keyClick(&forma, Qt::Key_Escape);
    });
    EXPECT_EQ(prova.stato.*caso.buffer, "prima");
  }
}

TEST(HelpTastiFunzione, ShowsTheKeysAndGoesWithEscOrEnter) {
  for (const Qt::Key tasto : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
    frmHelpTastiFunzione forma;
    Operatore::Esegue([&] { forma.exec(); }, {[tasto](QWidget& aperta) {
                        const QStringList scritte =
                            QString::fromStdString(Scritte(aperta)).split('|');
                        EXPECT_EQ(scritte.size(), 13);
                        EXPECT_EQ(scritte[0], "Help su tasti funzione");
                        EXPECT_EQ(scritte[7], "F7 = Inserisci nuova responsabilita");
                        QTest::keyClick(&aperta, tasto);
                      }});
    EXPECT_FALSE(forma.isVisible());
  }
}

}  // namespace
}  // namespace torvi
