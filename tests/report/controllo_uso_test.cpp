#include "report/controllo_uso.h"

#include "consegna_fonti.h"
#include "shell/consegna.h"

namespace torvi {
namespace {

using ControlloUso = ConsegnaFonti;

TEST_F(ControlloUso, ListsTheFunctionsUsedInTheirOrder) {
  const QString testa = "Sono stati utilizzate le seguenti funzioni:";
  EXPECT_EQ(FunzioniUsate(stato.DbArchivio), testa);
  const QStringList etichette = {"'Storico'",
                                 "'Stampa HTML per controllo Celex'",
                                 "'Stampa completa'",
                                 "'Stampa campi testi'",
                                 "'Stampa consistenze'",
                                 "'Stampa prospetto'",
                                 "'Visualizza errori generici'",
                                 "'Visualizza errori classificazione'",
                                 "'Visualizza errori fonti'"};
  QString attese = testa;
  for (int codice = 1; codice <= 9; ++codice) {
    RegistraUsoFunzione(stato, QString::number(codice));
    attese += "\r\n" + etichette.at(codice - 1);
    EXPECT_EQ(FunzioniUsate(stato.DbArchivio), attese);
  }
  // Anything but "1" is no use.
  stato.DbArchivio.Execute("update TabInfo set CELEX = \"2\", Storico = null");
  EXPECT_EQ(FunzioniUsate(stato.DbArchivio).count("\r\n"), 7);
}

TEST_F(ControlloUso, ShowsThemAfterAGoodLoginOnly) {
  RegistraUsoFunzione(stato, "5");
  stato.LoginRiservato = true;  // of an earlier command
  dialoghi.AttendeLogin(false);
  ControllaUso(stato, dialoghi);
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Non hai i diritti per utilizzare alla funzione");
  EXPECT_EQ(dialoghi.Errori(), "");
  EXPECT_FALSE(stato.LoginRiservato);
  dialoghi.AttendeLogin(true);
  ControllaUso(stato, dialoghi);
  EXPECT_EQ(dialoghi.Errori(), FunzioniUsate(stato.DbArchivio));
  EXPECT_EQ(stato.TestoErrori, dialoghi.Errori());
}

}  // namespace
}  // namespace torvi
