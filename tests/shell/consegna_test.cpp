#include "shell/consegna.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

constexpr const char* kMarcatori[] = {"Storico",
                                      "CELEX",
                                      "StampaCompleta",
                                      "StampaSoloTesto",
                                      "StampaConsistenze",
                                      "StampaProspetto",
                                      "VisualizzaErroriGenerici",
                                      "VisualizzaErroriClasse",
                                      "VisualizzaErroriFonti"};

QString Marcatori(const StatoGlobale& stato) {
  const Recordset info = stato.DbArchivio.OpenRecordset(QStringLiteral("TabInfo"));
  QString segni;
  for (const char* nome : kMarcatori)
    segni += info.Fields(nome).Nullo() ? "-" : info.Fields(nome).Testo();
  return segni;
}

TEST(Consegna, ReadsTheDataOfTheDelivery) {
  const CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna(
      {QStringLiteral("B07"), QStringLiteral("35"), QStringLiteral("A"), QStringLiteral("2001")});
  LeggiInfoConsegna(stato);
  EXPECT_EQ(stato.SiglaConsegna, QStringLiteral("B07"));
  EXPECT_EQ(stato.PrefissoDoc, QStringLiteral("2001A"));
  EXPECT_EQ(stato.ContatoreDoc, 35);
  EXPECT_EQ(NumeroDoc(stato), QStringLiteral("0035"));
  stato.ContatoreDoc = 12345;
  EXPECT_EQ(NumeroDoc(stato), QStringLiteral("12345"));
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
    StatoGlobale stato =
        cartella.StatoConConsegna({QStringLiteral("A01"), QLatin1String(caso.inizio),
                                   QStringLiteral("A"), QStringLiteral("2001")});
    EXPECT_EQ(NumeroErrore([&] { LeggiInfoConsegna(stato); }), caso.errore) << caso.inizio;
    EXPECT_EQ(stato.ContatoreDoc, caso.contatore) << caso.inizio;
  }
}

TEST(Consegna, EveryColumnIsNeeded) {
  for (const char* colonna : {"Consegna", "NumInizio", "IDCentroSpoglio", "AnnoProduzione"}) {
    const CartellaDiProva cartella;
    StatoGlobale stato = cartella.StatoConConsegna();
    stato.DbArchivio.Execute(
        QStringLiteral("update TabInfo set %1 = null").arg(QLatin1String(colonna)));
    EXPECT_EQ(NumeroErrore([&] { LeggiInfoConsegna(stato); }), 94) << colonna;
  }
}

TEST(Consegna, NeedsExactlyOneRowAndNamesTheArchive) {
  const CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  const auto descrizione = [&stato] {
    try {
      LeggiInfoConsegna(stato);
    } catch (const ErroreEsecuzione& errore) {
      return QStringLiteral("%1 %2").arg(QString::number(errore.Numero()), errore.Descrizione());
    }
    return QString();
  };
  Aggiungi(stato.DbArchivio, QStringLiteral("TabInfo"), {{"Consegna", "A02"}, {"NumInizio", "1"}});
  EXPECT_EQ(descrizione(),
            "3011 TabInfo ha più di una riga: non si sa di quale consegna sia "
            "l'archivio " +
                stato.DbArchivio.Name());
  stato.DbArchivio.Execute(QStringLiteral("delete * from TabInfo"));
  EXPECT_EQ(descrizione(),
            "3021 Nessun record corrente: TabInfo è vuota in " + stato.DbArchivio.Name());
  EXPECT_EQ(NumeroErrore([&] { RegistraUsoFunzione(stato, QStringLiteral("1")); }), 3021);
}

TEST(Consegna, EachCodeMarksItsOwnColumnForGood) {
  const CartellaDiProva cartella;
  const StatoGlobale stato = cartella.StatoConConsegna();
  for (const char* codice : {"", "0", "10", "a"}) RegistraUsoFunzione(stato, QLatin1String(codice));
  EXPECT_EQ(Marcatori(stato), QStringLiteral("---------"));
  QString attesi = QStringLiteral("---------");
  for (const int codice : {5, 1, 9, 2, 7, 3, 8, 6, 4}) {
    RegistraUsoFunzione(stato, QString::number(codice));
    attesi[codice - 1] = u'1';
    EXPECT_EQ(Marcatori(stato), attesi) << codice;
  }
}

}  // namespace
}  // namespace torvi
