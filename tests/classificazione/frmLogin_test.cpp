#include "classificazione/frmLogin.h"

#include <gtest/gtest.h>

#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

// What stands on the form and the keys of an operator; the form goes only where it should.
TEST(Login, TakesOnlyTheRightPassword) {
  DialoghiScritti dialoghi;
  PasswordErrate errate;
  frmLogin forma(dialoghi, "Segreto", errate);
  EXPECT_EQ(Scritte(forma),
            "Login per accesso alla parte riservata|&User Name:|&Password:|Cancellare contenuto "
            "tabelle prima di importare i nuovi dati.||OK|Cancel");
  EXPECT_EQ(Trova<QLineEdit>(forma, "txtPassword").echoMode(), QLineEdit::Password);
  Operatore::Esegue([&] { EXPECT_EQ(forma.exec(), QDialog::Accepted); }, {[&](QWidget&) {
                      Batti("chiunque{Tab}segreto{Tab}{Return}");
                      EXPECT_FALSE(forma.LoginRiservato);
                      // The wrong one is selected, so that what is typed takes its place.
                      Batti("Segreto{Return}");
                    }});
  EXPECT_TRUE(forma.LoginRiservato);
  ASSERT_EQ(dialoghi.Messaggi(), QStringList{"Invalid Password, try again!"});
  EXPECT_EQ(dialoghi.Parole().first().titolo, "Login");

  Operatore::Esegue([&] { forma.exec(); }, {[](QWidget& modale) { Clic(modale, "cmdCancel"); }});
  EXPECT_FALSE(forma.LoginRiservato);
}

TEST(Login, WaitsLongerAfterEachWrongPassword) {
  const int attese[] = {0, 0, 1, 2, 4, 8, 16, 32, 60, 60};
  for (int errate = 0; errate < std::ssize(attese); ++errate) {
    EXPECT_EQ(PausaDopo(errate).count(), attese[errate]) << errate;
  }
  EXPECT_EQ(PausaDopo(100000).count(), 60);

  DialoghiScritti dialoghi;
  PasswordErrate errate;
  for (int volta = 0; volta < 2; ++volta) {  // opened again it waits all the same
    frmLogin forma(dialoghi, "Segreto", errate);
    Operatore::Esegue([&] { forma.exec(); }, {[&](QWidget&) {
                        Batti("{Tab}a{Return}b{Return}Segreto{Return}");
                        EXPECT_FALSE(forma.LoginRiservato);
                        EXPECT_EQ(dialoghi.Messaggi().size(), 2);
                        EXPECT_EQ(Trova<QLabel>(forma, "labelAttesa").text(),
                                  "Password errate: attendere 1 s prima di riprovare.");
                        const auto& ok = Trova<QPushButton>(forma, "cmdOK");
                        EXPECT_FALSE(ok.isEnabled());
                        if (volta == 0) return forma.reject();
                        EXPECT_TRUE(QTest::qWaitFor([&] { return ok.isEnabled(); }));
                        EXPECT_EQ(Trova<QLabel>(forma, "labelAttesa").text(), "");
                        Batti("{Ctrl+A}Segreto{Return}");
                      }});
    EXPECT_EQ(forma.LoginRiservato, volta == 1);
  }
  EXPECT_EQ(errate.quante, 0);
}

}  // namespace
}  // namespace torvi
