#include "export/riferimento.h"

#include <gtest/gtest.h>

#include "export/documento_di_prova.h"

namespace torvi {
namespace {

constexpr qint64 kDocumento = 1;

const DatiDocumento kDati = {.IDRifBibl = 1,
                             .pagine = "1-2",
                             .td = "02",
                             .TAbs = "600",
                             .Bib = "1",
                             .LIN = "00",
                             .lo = "00",
                             .lr = "00",
                             .la = "00"};

class Riferimento : public testing::Test {
 protected:
  // The mark of a citation is shown as "~".
  Scritto Scrivi(const DatiDocumento& dati) {
    Scritto scritto = prova.Scrivi([&](ContestoEsportazione& contesto) {
      ScriviRiferimento(contesto, {contesto.legami.testi, kDocumento}, kDocumento, "2001A0012",
                        dati);
    });
    std::replace(scritto.campi.begin(), scritto.campi.end(), '\x06', '~');
    return scritto;
  }
  Scritto ConRiferimento(Valori valori, DatiDocumento dati = kDati) {
    dati.IDRifBibl = Intero16(prova.Riferimento(valori));
    return Scrivi(dati);
  }
  DocumentiDiProva prova;
};

TEST_F(Riferimento, EverySubfieldHasItsPlaceAndItsPadding) {
  DatiDocumento dati = kDati;
  dati.LIN = dati.lo = "01";
  dati.lr = "02";
  dati.la = "03";
  const Scritto scritto = ConRiferimento({{"Serie", "3"},
                                          {"Annata", "47"},
                                          {"Supplemento", "1"},
                                          {"Parte", "I"},
                                          {"Sezione", "II"},
                                          {"Volume", "XII"}},
                                         dati);
  EXPECT_EQ(scritto.campi,
            " 5PER=RGI FR=3 SR=03 ANN=000047 DATA=15032001 FASC=000000003 SUPP=001\n"
            "14PT=I SEZ=II, PAG=0001-0002 TD=02 TABS=600 BIB=1 LIN=01 LO=01 LR=02 LA=03 "
            "VOL=000XII\n"
            "21Rivista giuridica, ~D2001~d, fasc~. 3 (15 marzo), pt~. I, pagg~. 1-2, (con note)\n");
  EXPECT_EQ(scritto.errori, "");
}

TEST_F(Riferimento, WhatIsMissingIsToldAndLeftOut) {
  const Scritto scritto = ConRiferimento({{"Fascicolo", Campo()}, {"Data", ""}},
                                         {.LIN = "00", .lo = "00", .lr = "00", .la = "00"});
  EXPECT_EQ(scritto.campi, " 5PER=RGI FR=3\n14LIN=00\n21Rivista giuridica,\n");
  EXPECT_EQ(scritto.errori,
            "Errore fascicolo mancante: 2001A0012\r\n"
            "Errore pagina mancante: 2001A0012\r\n"
            "Errore TD mancante: 2001A0012\r\n"
            "Errore TAbs mancante: 2001A0012\r\n"
            "Errore BIB mancante: 2001A0012\r\n");
}

TEST_F(Riferimento, MessagesOfTheParts) {
  DatiDocumento dati = kDati;
  dati.pagine = "7.5-3";
  const Scritto scritto = ConRiferimento({{"Fascicolo", "1/2"}, {"Data", "32/03/2002"}}, dati);
  EXPECT_EQ(scritto.campi,
            " 5PER=RGI FR=3 DATA=32032002 FASC=0000001/2\n"
            "14PAG=7.5 TD=02 TABS=600 BIB=1 LIN=00\n"
            "21Rivista giuridica, ~D2002~d, fasc~. 1/2, pagg~. 7.5-3, (con note)\n");
  EXPECT_EQ(scritto.errori,
            "Errore anno nel sottocampo DATA: 2001A0012\r\n"
            "Fascicolo con '/': 2001A0012\r\n"
            "Errore giorno nel sottocampo DATA: 2001A0012\r\n"
            "Errore di paginazione: 2001A0012\r\n"
            "Errore di paginazione: 2001A0012\r\n");
}

TEST_F(Riferimento, AWorkWithoutIssuesNeedsNone) {
  const qint64 rivista =
      prova.Riga("TabRivista", {{"CPER", "OPS"}, {"TitoloRivista", "Opera"}, {"IDPeriodicita", 9}});
  const Scritto scritto = ConRiferimento({{"IDRivista", rivista}, {"Fascicolo", ""}});
  EXPECT_EQ(scritto.errori, "");
  EXPECT_EQ(scritto.campi.substr(0, scritto.campi.find('\n')), " 5PER=OPS FR=9 DATA=15032001");
}

TEST_F(Riferimento, TheLastDateDecidesTheScheme) {
  struct Caso {
    const char* data;
    bool dopo2000;
  };
  constexpr Caso kCasi[] = {{"01/01/2000", true}, {"", true},           {"31/12/1999", false},
                            {"", false},          {"00/00/2001", true}, {"00/00", false}};
  for (const Caso& caso : kCasi) {
    (void)ConRiferimento({{"Data", caso.data}});
    EXPECT_EQ(prova.stato.Dopo2000, caso.dopo2000) << caso.data;
  }
}

TEST_F(Riferimento, SomeAbstractTypesCallForASummary) {
  struct Caso {
    const char* tAbs;
    const char* tipoTesto;
    bool manca;
  };
  constexpr Caso kCasi[] = {{"500", "1", true},  {"800", "1", true},  {"700", "1", false},
                            {"500", "2", false}, {"800", "7", false}, {"500", "3", true}};
  for (const Caso& caso : kCasi) {
    prova.stato.DbArchivio.Execute("delete * from LegameDocTesto");
    prova.Testo(kDocumento, caso.tipoTesto, "testo");
    prova.Testo(kDocumento + 1, "2", "di un altro");
    DatiDocumento dati = kDati;
    dati.TAbs = caso.tAbs;
    EXPECT_EQ(ConRiferimento({}, dati).errori,
              caso.manca ? "Manca 'In tema di'/'Sommario' e TABS = 500/800: 2001A0012\r\n" : "")
        << caso.tAbs << ' ' << caso.tipoTesto;
  }
}

TEST_F(Riferimento, ARowThatIsNotThereEndsTheRun) {
  DatiDocumento dati = kDati;
  dati.IDRifBibl = 0;
  EXPECT_EQ(Scrivi(dati).errore, 3021);
  dati.Bib = "7";
  dati.IDRifBibl = Intero16(prova.Riferimento({}));
  EXPECT_EQ(Scrivi(dati).errore, 3021);
  EXPECT_EQ(ConRiferimento({{"IDRivista", 99}}).errore, 3021);
}

}  // namespace
}  // namespace torvi
