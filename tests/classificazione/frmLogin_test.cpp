#include "classificazione/frmLogin.h"

#include <gtest/gtest.h>

#include "comune/dialoghi_scritti.h"
#include "comune/tastiera.h"

namespace torvi {
namespace {

// What stands on the form and the keys of an operator; the form goes only where it should.
TEST(Login, TakesOnlyTheRightPassword) {
  DialoghiScritti dialoghi;
  frmLogin forma(dialoghi, "Segreto");
  EXPECT_EQ(Scritte(forma),
            "Login per accesso alla parte riservata|&User Name:|&Password:|Cancellare contenuto "
            "tabelle prima di importare i nuovi dati.|OK|Cancel");
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

}  // namespace
}  // namespace torvi
