#include "document/frmResponsabilita.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QLineEdit>
#include <QRadioButton>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

const RigaResponsabilita kRossi = {7, "Rossi", "Mario", false, false, true};

class FormaResponsabilita : public testing::Test {
 protected:
  int Apre(qint16 indice, const std::function<void(frmResponsabilita&)>& uso) {
    frmResponsabilita forma(stato, dialoghi, indice);
    if (indice >= 0) forma.PreparaResponsabilitaModifica();
    int esito = -1;
    Operatore::Esegue([&] { esito = forma.exec(); }, {[&](QWidget&) { uso(forma); }});
    return esito;
  }

  StatoGlobale stato;
  DialoghiScritti dialoghi;
};

TEST_F(FormaResponsabilita, AddsAPersonByKeysAlone) {
  const int esito = Apre(-1, [](frmResponsabilita&) {
    Batti(" D'Amico {Return}Zoe \"Z\"{Enter}{Right}{Return}{Return}");
  });
  EXPECT_EQ(esito, QDialog::Accepted);
  ASSERT_EQ(stato.RigheResponsabilita.size(), 1U);
  EXPECT_EQ(stato.RigheResponsabilita[0],
            (RigaResponsabilita{0, "D'Amico", "Zoe \"Z\"", false, true, false}));
}

TEST_F(FormaResponsabilita, ChangesItsRowAndKeepsKeyAndMarks) {
  stato.RigheResponsabilita = {{}, kRossi};
  const QString lungo = QString(40000, u'x') + "\tà\nb";
  Apre(1, [&lungo](frmResponsabilita& forma) {
    EXPECT_EQ(Trova<QLineEdit>(forma, "txtElementoPr").text(), "Rossi");
    EXPECT_TRUE(Trova<QRadioButton>(forma, "optCuratore").isChecked());
    QGuiApplication::clipboard()->setText(lungo);
    QTest::keySequence(forma.focusWidget(), QKeySequence::SelectAll);
    QTest::keySequence(forma.focusWidget(), QKeySequence::Paste);
    QTest::mouseClick(&Trova<QRadioButton>(forma, "optAutore"), Qt::LeftButton);
    Clic(forma, "cmdEsci");
  });
  EXPECT_EQ(stato.RigheResponsabilita[1],
            (RigaResponsabilita{7, QString(40000, u'x') + "\tà b", "Mario", true, false, true}));
}

TEST_F(FormaResponsabilita, LeavesTheRowAlone) {
  stato.RigheResponsabilita = {kRossi};
  const int esito = Apre(0, [](frmResponsabilita&) { Batti("altro{Tab}{Tab}{Tab}{Tab}{Space}"); });
  EXPECT_EQ(esito, QDialog::Rejected);
  EXPECT_EQ(stato.RigheResponsabilita, std::vector{kRossi});
}

TEST_F(FormaResponsabilita, AddsAnEmptyRowTooAsFarAsTheCountGoes) {
  frmResponsabilita forma(stato, dialoghi, 0);
  EXPECT_EQ(NumeroErrore([&forma] { forma.PreparaResponsabilitaModifica(); }), 9);
  stato.RigheResponsabilita.resize(32766);
  for (const int esito : {QDialog::Accepted, QDialog::Rejected}) {
    EXPECT_EQ(Apre(-1,
                   [](frmResponsabilita& aperta) {
                     Clic(aperta, "cmdEsci");
                     if (aperta.isVisible()) aperta.reject();
                   }),
              esito);
    EXPECT_EQ(stato.RigheResponsabilita.size(), 32767U);
  }
  EXPECT_EQ(stato.RigheResponsabilita.back(), (RigaResponsabilita{0, "", "", true, true, false}));
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("Errore di run-time '6':"));
}

}  // namespace
}  // namespace torvi
