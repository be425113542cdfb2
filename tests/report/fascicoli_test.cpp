#include <gtest/gtest.h>

#include <QFile>

#include "comune/dialoghi_scritti.h"
#include "report/consegna_da_stampare.h"
#include "report/consistenza.h"
#include "report/prospetto.h"

namespace torvi {
namespace {

// A delivery whose issues the prints by issue count each in its own way.
class ConsegnaAFascicoli : public DocumentiDiProva {
 public:
  ConsegnaAFascicoli() {
    ScriviByte(cartella.Percorso() + "/testata prospetto.rtf", "{\\rtf1\r\n\\a CONSEGNA xxx\r\n");
    Riga("TabRivista", {{"CPER", "AAB"}, {"TitoloRivista", "<A> & \"È\""}, {"IDPeriodicita", 9}});
    const Campo nullo;
    Fascicolo({{"Data", "15/03/2001"}}, {"400", "500"});
    Fascicolo({{"Data", "2001"}}, {"600"});
    Fascicolo({{"Data", "00/00/2001"}, {"Fascicolo", nullo}}, {"700"});
    Fascicolo({{"Data", "01/01/2001"}, {"Fascicolo", nullo}}, {"800"});
    Fascicolo({{"Data", "00/05/2000"}, {"Fascicolo", "10"}, {"IDRivista", 2}}, {"900", ""});
    Fascicolo({{"Data", nullo}, {"Fascicolo", "2"}, {"IDRivista", 2}}, {"400"});
    Fascicolo({{"Data", "00/00"}, {"Fascicolo", ""}, {"IDRivista", 2}}, {"500", "500"});
    Documento({{"IDRifBibl", 0}});
    for (const qint64 id : {4, 2}) Testo(id, "8", QStringLiteral("English"));
    for (const qint64 id : {4, 5, 2, 10}) Testo(id, "7", QStringLiteral("tema"));
  }
  void Fascicolo(Valori riferimento, std::initializer_list<const char*> tAbs) const {
    const qint64 id = Riferimento(riferimento);
    for (const char* uno : tAbs) Documento({{"IDRifBibl", id}, {"TAbs", uno}});
  }
  [[nodiscard]] bool Marcata(const char* colonna) const {
    return stato.DbArchivio.OpenRecordset(QStringLiteral("TabInfo")).Fields(colonna) == Campo("1");
  }
};

TEST(Prospetto, BothFormsComeOutToTheByte) {
  for (const bool rtf : {true, false}) {
    ConsegnaAFascicoli prova;
    DialoghiScritti dialoghi;
    dialoghi.AttendeDomanda(QStringLiteral("Per formato RTF: yes, per formato HTML: no"), {},
                            Pulsanti::SiNo, rtf ? Risposta::Si : Risposta::No);
    ComandoStampaProspetto(prova.stato, dialoghi);
    EXPECT_EQ(dialoghi.Messaggi(), QStringList("Fine stampa prospetto"));
    ConfrontaConDati(prova, rtf ? "prospetto A01.rtf" : "prospetto A01.html");
    EXPECT_TRUE(prova.Marcata("StampaProspetto"));
  }
}

TEST(Prospetto, WithoutDocumentsTheTableIsEmpty) {
  DocumentiDiProva prova;
  DialoghiScritti dialoghi;
  ProspettoHTML(prova.stato, dialoghi);
  const std::string file = prova.Dump("prospetto A01.html");
  EXPECT_TRUE(
      file.ends_with("<TD ALIGN=\"RIGHT\"><B>0</B></TD>\r\n</TR>\r\n</TABLE>\r\n</BODY>\r\n"
                     "</HTML>\r\n"));
  EXPECT_EQ(NumeroErrore([&] { ProspettoRTF(prova.stato, dialoghi); }), 53);
}

TEST(Consistenza, ComesOutToTheByteAndTellsWhatItDidNotCount) {
  ConsegnaAFascicoli prova;
  DialoghiScritti dialoghi;
  StampaConsistenza(prova.stato, dialoghi);
  EXPECT_EQ(prova.Dump("consistenza.A01"),
            "      0###AAB  9 2\r\n"
            "      2###AAB 0/00 9 \r\n"
            "      2###AAB 2000 9 10\r\n"
            "      1###RGI 2001 3 \r\n"
            "      1###RGI 2001 3 \r\n"
            "      2###RGI 2001 3 3\r\n"
            "      1###RGI 2001 3 3\r\n"
            "\r\n"
            "Documenti: 9\r\n"
            "\r\n"
            "Num. iniziale: 2001A0012   Num. finale: 2001A0022   Num. docc.: 11\r\n");
  EXPECT_EQ(dialoghi.Messaggi(),
            QStringList({"TotTAbs: 9 --- Num. docc.: 11", "Fine stampa consistenza"}));
  EXPECT_EQ(dialoghi.UltimoFile(), prova.cartella.Dump("consistenza.A01"));
  EXPECT_TRUE(prova.Marcata("StampaConsistenze"));
}

TEST(Consistenza, WithoutDocumentsTheLastNumberIsBeforeTheFirst) {
  DocumentiDiProva prova;
  DialoghiScritti dialoghi;
  StampaConsistenza(prova.stato, dialoghi);
  EXPECT_EQ(prova.Dump("consistenza.A01"),
            "\r\nDocumenti: 0\r\n\r\n"
            "Num. iniziale: 2001A0012   Num. finale: 2001A0011   Num. docc.: 0\r\n");
}

// The count takes the words for the marker of an issue without number.
TEST(Consistenza, AnIssueNamedAsTheMarkerCountsThoseWithoutNumber) {
  ConsegnaAFascicoli prova;
  prova.Fascicolo({{"Data", "01/01/2001"}, {"Fascicolo", "<Null>"}}, {"400", "400"});
  DialoghiScritti dialoghi;
  StampaConsistenza(prova.stato, dialoghi);
  EXPECT_NE(prova.Dump("consistenza.A01").find("      1###RGI 2001 3 <Null>\r\n"),
            std::string::npos);
}

// A quote of the statement itself inside a text breaks it; a doubled one is one.
TEST(Fascicoli, QuotesInAnIssueBreakTheCountThatUsesThem) {
  using Stampa = void (*)(StatoGlobale&, Dialoghi&);
  struct Caso {
    Stampa stampa;
    const char* fascicolo;
    int errore;
  };
  constexpr Caso kCasi[] = {{StampaConsistenza, "3'bis", 3075}, {StampaConsistenza, "3''", 0},
                            {StampaConsistenza, "3\"", 0},      {ProspettoHTML, "3\"", 3075},
                            {ProspettoHTML, "3\"\"", 0},        {ProspettoHTML, "3'bis", 0},
                            {ProspettoRTF, "\"\"\"", 3075}};
  for (const Caso& caso : kCasi) {
    ConsegnaAFascicoli prova;
    DialoghiScritti dialoghi;
    prova.Fascicolo({{"Fascicolo", caso.fascicolo}}, {"400"});
    EXPECT_EQ(NumeroErrore([&] { caso.stampa(prova.stato, dialoghi); }), caso.errore)
        << caso.fascicolo;
    EXPECT_EQ(dialoghi.Messaggi().isEmpty(), caso.errore != 0);
    EXPECT_FALSE(dialoghi.InAttesa());
  }
}

}  // namespace
}  // namespace torvi
