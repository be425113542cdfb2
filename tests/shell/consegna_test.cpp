#include "shell/consegna.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

QString Marcatori(const StatoGlobale& stato) {
  const QString colonne =
      "Storico CELEX StampaCompleta StampaSoloTesto StampaConsistenze StampaProspetto "
      "VisualizzaErroriGenerici VisualizzaErroriClasse VisualizzaErroriFonti";
  return RigheTesto(stato.DbArchivio, "TabInfo", colonne.split(' ')).join('\n').remove('|');
}

TEST(Consegna, ReadsTheDataOfTheDelivery) {
  const CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna({"B07", "35", "A", "2001"});
  LeggiInfoConsegna(stato);
  EXPECT_EQ(stato.SiglaConsegna, "B07");
  EXPECT_EQ(stato.PrefissoDoc, "2001A");
  EXPECT_EQ(stato.ContatoreDoc, 35);
  EXPECT_EQ(NumeroDoc(stato), "0035");
  stato.ContatoreDoc = 12345;
  EXPECT_EQ(NumeroDoc(stato), "12345");
}

TEST(Consegna, TakesTheNumericValueOfTheFirstNumber) {
  struct Caso {
    const char* inizio;
    int contatore;
    int errore;
  };
  for (const Caso& caso :
       {Caso{"12a", 12, 0}, Caso{"dodici", 0, 0}, Caso{"32767", 32767, 0}, Caso{"32768", 0, 6},
        Caso{"99999999999999999999", 0, 6}, Caso{"2.5", 2, 0}, Caso{" 7", 7, 0}}) {
    const CartellaDiProva cartella;
    StatoGlobale stato = cartella.StatoConConsegna({"A01", caso.inizio, "A", "2001"});
    EXPECT_EQ(NumeroErrore([&] { LeggiInfoConsegna(stato); }), caso.errore) << caso.inizio;
    EXPECT_EQ(stato.ContatoreDoc, caso.contatore) << caso.inizio;
  }
}

TEST(Consegna, EveryColumnIsNeeded) {
  for (const char* colonna : {"Consegna", "NumInizio", "IDCentroSpoglio", "AnnoProduzione"}) {
    const CartellaDiProva cartella;
    StatoGlobale stato = cartella.StatoConConsegna();
    stato.DbArchivio.Execute(QStringLiteral("update TabInfo set %1 = null").arg(colonna));
    EXPECT_EQ(NumeroErrore([&] { LeggiInfoConsegna(stato); }), 94) << colonna;
  }
}

TEST(Consegna, NeedsExactlyOneRowAndNamesTheArchive) {
  const CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  const auto leggi = [&stato] { LeggiInfoConsegna(stato); };
  Aggiungi(stato.DbArchivio, "TabInfo", {{"Consegna", "A02"}, {"NumInizio", "1"}});
  EXPECT_EQ(ErroreDi(leggi),
            "3011 TabInfo ha più di una riga: non si sa di quale consegna sia "
            "l'archivio " +
                stato.DbArchivio.Name());
  stato.DbArchivio.Execute("delete * from TabInfo");
  EXPECT_EQ(ErroreDi(leggi),
            "3021 Nessun record corrente: TabInfo è vuota in " + stato.DbArchivio.Name());
  EXPECT_EQ(NumeroErrore([&] { RegistraUsoFunzione(stato, "1"); }), 3021);
}

TEST(Consegna, EachCodeMarksItsOwnColumnForGood) {
  const CartellaDiProva cartella;
  const StatoGlobale stato = cartella.StatoConConsegna();
  for (const char* codice : {"", "0", "10", "a"}) RegistraUsoFunzione(stato, codice);
  EXPECT_EQ(Marcatori(stato), "---------");
  QString attesi = "---------";
  for (const int codice : {5, 1, 9, 2, 7, 3, 8, 6, 4}) {
    RegistraUsoFunzione(stato, QString::number(codice));
    attesi[codice - 1] = u'1';
    EXPECT_EQ(Marcatori(stato), attesi) << codice;
  }
}

}  // namespace
}  // namespace torvi
