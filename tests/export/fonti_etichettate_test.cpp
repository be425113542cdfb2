#include "export/fonti_etichettate.h"

#include <gtest/gtest.h>

#include "export/celex.h"
#include "export/fonti_di_prova.h"

namespace torvi {
namespace {

class FontiEtichettateTest : public testing::Test {
 protected:
  FontiEtichettateTest() {
    prova.Riga("TabFonteInterna", {{"FonteNorm", "l."}, {"URN", "urn:nir:stato:legge"}});
    prova.Riga("TabFonteCom",
               {{"FonteCom", "Dir."}, {"Settore", "3"}, {"Codice", "L"}, {"AnnoF", "1900"}});
    prova.Riga("TabFonteInt", {{"FonteInt", "ONU"}});
    prova.Riga("TabFonteCan", {{"FonteCan", "c.i.c."}});
  }

  // Field 22 without its tag and end of line, or the number of the run-time error.
  std::string Campo22() {
    const Scritto esito = prova.Etichettate();
    EXPECT_EQ(esito.errori + esito.errFonte, "");
    if (esito.errore != 0) return std::to_string(esito.errore);
    EXPECT_EQ(esito.campi.substr(0, 2), "22");
    return esito.campi.substr(2, esito.campi.size() - 3);
  }
  // Only source of the document.
  std::string Sola(Valori valori) {
    prova.TogliFonti();
    prova.Fonte(valori);
    return Campo22();
  }
  std::string Urn(Valori valori) {
    const std::string campo = Sola(valori);
    const auto posto = campo.rfind("^u");
    return posto == std::string::npos ? campo : campo.substr(posto + 2);
  }
  std::string Celex(Valori valori) {
    const std::string campo = Sola(valori);
    const auto inizio = campo.find("^x");
    return inizio == std::string::npos ? campo
                                       : campo.substr(inizio + 2, campo.find("^y") - inizio - 2);
  }
  qint64 Interna(const char* urn) const {
    return prova.Riga("TabFonteInterna", {{"FonteNorm", "x"}, {"URN", Campo(urn)}});
  }

  FontiDiProva prova;
};

constexpr const char* kVuoti = "^y ^m ^d ^n ^a ^j ^c ^k ^l ^g ^s ^o ^e ^r ^p ^i ^z ^u";

TEST_F(FontiEtichettateTest, TheCodeSelectsTheFamily) {
  const std::string interna = "^fl.^x ";
  const std::string comunitaria = "^fDir.^x3L0000";
  const std::string internazionale = "^fONU^x ";
  const std::string canonica = "^fc.i.c.^x ";
  const std::string nessuna = "^f ^x ";
  const std::vector<std::pair<std::string, std::vector<const char*>>> famiglie = {
      {interna, {"LIO", "LIC",  "LICO", "LIOA", "LIR", "LIP", "LIAB", "AC",   "GICO", "GICA",
                 "GIO", "GICD", "GIT",  "GICC", "GIA", "GIQ", "GIM",  "GIAL", "GIS",  "GIB"}},
      {comunitaria, {"NIC", "GEC"}},
      {internazionale, {"NIT", "NIA", "GEI"}},
      {canonica, {"FCC", "FCG"}},
      {nessuna, {"NS",   "GS",   "FCA",  "FSRG", "FSRP", "FSRE", "FSRL", "FSGG", "FSGP",
                 "FSGE", "FSGL", "FSBG", "FSBP", "FSBE", "FSBL", "FSC",  "FSE",  "FSI",
                 "FSAG", "FSAP", "FSAE", "FSAL", "FSA",  "",     "lio",  "XX"}},
  };
  for (const auto& [inizio, codici] : famiglie) {
    for (const std::string tp : codici) {
      const auto fonte = [&](const std::string& attesa) {
        return "^t" + tp + attesa + kVuoti + (attesa == interna ? "urn:nir:stato:legge" : " ");
      };
      const std::string seguente = tp == "GIB" ? nessuna : inizio;
      prova.TogliFonti();
      prova.Fonte({{"TP", tp.c_str()}, {"fonte", 1}});
      prova.Fonte({{"TP", tp.c_str()}, {"fonte", 1}});
      EXPECT_EQ(Campo22(), fonte(inizio) + "\\" + fonte(seguente));
    }
  }
}

TEST_F(FontiEtichettateTest, AllSubfieldsInTheirOrder) {
  prova.Riga("TabStato", {{"stato", "Francia"}});
  prova.Riga("TabMinistero", {{"MinisteroNorm", "Min. int."}, {"ministero", "dell'interno"}});
  prova.Riga("TabAmministrazione", {{"AmministrazioneNorm", "AMM"}});
  prova.Riga("TabAutorita", {{"AutoritaNorm", "AUT"}});
  prova.Riga("TabRegione",
             {{"CodRegione", "LA"}, {"regione", "Lazio"}, {"codRegioneURN", "lazio"}});
  prova.Riga("TabProvincia", {{"CodProvincia", "RM"}, {"provincia", "Roma"}});
  prova.Riga("TabCitta", {{"citta", "Tivoli"}});
  prova.Riga("TabSezione", {{"sigla", "s.u."}, {"sezione", "sezioni unite"}});
  const Valori tutti = {{"TP", "LIO"},       {"fonte", Interna("urn:nir:regione.xxx;p.xxx:legge")},
                        {"anno", "1990"},    {"mese", "8"},
                        {"giorno", "7"},     {"numero", "241"},
                        {"articolo", "3"},   {"ripa", "bis"},
                        {"comma", "2"},      {"ripc", "ter"},
                        {"lettera", "b"},    {"allegato", "A"},
                        {"numeroP", "9"},    {"altro", "altro"},
                        {"IDStato", 1},      {"IDMinistero", 1},
                        {"IDAutorita", 1},   {"IDAmministrazione", 1},
                        {"IDRegione", 1},    {"IDProvincia", 1},
                        {"IDCitta", 1},      {"IDSezione", 1},
                        {"ordinanza", true}, {"decreto", true}};
  EXPECT_EQ(Sola(tutti),
            "^tLIO^fx^x ^y1990^m8^d7^n241^a3^jbis^c2^kter^lb^gA^sFrancia^oMin. int.^eAMM^eAUT"
            "^rLazio^pRoma^iTivoli^zs.u.^uurn:nir:regione.lazio;p.roma:legge:1990-08-07%3b241");
  EXPECT_EQ(Sola({{"TP", "NS"}, {"anno", "1994"}, {"IDStato", 1}}),
            "^tNS^f ^x ^y1994^m ^d ^n ^a ^j ^c ^k ^l ^g ^sFrancia^o ^e ^r ^p ^i ^z ^u ");
  EXPECT_EQ(Sola({{"TP", "NS"}, {"mese", "0"}, {"IDAutorita", 1}, {"IDAmministrazione", Campo()}}),
            "^tNS^f ^x ^y ^m0^d ^n ^a ^j ^c ^k ^l ^g ^s ^o ^eAUT^r ^p ^i ^z ^u ");
  EXPECT_EQ(Sola({{"TP", "NS"}, {"anno", ""}, {"IDAmministrazione", 1}, {"IDStato", Campo()}}),
            "^tNS^f ^x ^y ^m ^d ^n ^a ^j ^c ^k ^l ^g ^s ^o ^eAMM^r ^p ^i ^z ^u ");
}

TEST_F(FontiEtichettateTest, UrnOfTheWholeSource) {
  prova.Riga("TabRegione", {{"regione", "Lazio"}, {"codRegioneURN", "lazio"}});
  prova.Riga("TabProvincia", {{"provincia", "Roma"}});
  const qint64 regione = Interna("urn:nir:regione.xxx:legge");
  const qint64 senza = prova.Riga("TabFonteInterna", {{"FonteNorm", "x"}});
  EXPECT_EQ(Urn({{"TP", "LIO"}, {"fonte", 1}, {"mese", "12"}, {"giorno", "31"}}),
            "urn:nir:stato:legge-12-31");
  EXPECT_EQ(Urn({{"TP", "LIO"},
                 {"fonte", 1},
                 {"anno", "1947"},
                 {"mese", "8"},
                 {"giorno", "7"},
                 {"numero", "1"},
                 {"IDRegione", 1}}),
            " ");
  EXPECT_EQ(Urn({{"TP", "LIR"}, {"fonte", regione}, {"anno", "2000"}, {"IDRegione", 1}}),
            "urn:nir:regione.lazio:legge:2000");
  EXPECT_EQ(Urn({{"TP", "LIP"},
                 {"fonte", Interna("urn:nir:provincia.xxx:delibera")},
                 {"IDProvincia", 1}}),
            "urn:nir:provincia.roma:delibera");
  EXPECT_EQ(Urn({{"TP", "LIO"}, {"fonte", senza}, {"anno", "1990"}, {"IDRegione", 1}}), " ");
  EXPECT_EQ(Urn({{"TP", "LIO"}, {"fonte", Interna("")}, {"anno", "1990"}}), " ");
  EXPECT_EQ(Urn({{"TP", "LIO"}, {"fonte", 1}, {"IDRegione", 1}}), "5");
  EXPECT_EQ(Urn({{"TP", "LIO"}, {"fonte", 1}, {"IDProvincia", 1}}), "5");
  EXPECT_EQ(Urn({{"TP", "LIR"}, {"fonte", regione}, {"IDRegione", 1}, {"IDProvincia", 1}}), "5");
}

TEST_F(FontiEtichettateTest, PositionReachesTheGuardsOfTheUrn) {
  const qint64 atto = Interna("urn:nir:presidente.repubblica:decreto:1959-06-15%3b393");
  prova.TogliFonti();
  for (int volta = 0; volta < 2; ++volta) {
    prova.Fonte(
        {{"TP", "LIO"}, {"fonte", atto}, {"mese", "6"}, {"giorno", "15"}, {"numero", "393"}});
  }
  const std::string campo = Campo22();
  EXPECT_NE(campo.find("^uurn:nir:presidente.repubblica:decreto:1959-06-15%3b393\\^t"),
            std::string::npos)
      << campo;
  EXPECT_TRUE(
      campo.ends_with("^uurn:nir:presidente.repubblica:decreto:1959-06-15%3b393-06-15%3b393"))
      << campo;
}

TEST_F(FontiEtichettateTest, CelexOfTheEuFamily) {
  const auto com = [&](const char* settore, const char* codice, const Campo& annoF) {
    return prova.Riga(
        "TabFonteCom",
        {{"FonteCom", "x"}, {"Settore", settore}, {"Codice", codice}, {"AnnoF", annoF}});
  };
  const qint64 vuoto = com("", "L", "1900");
  const qint64 nullo = prova.Riga("TabFonteCom", {{"FonteCom", "x"}});
  const qint64 senzaAnno = com("1", "E", Campo());
  const qint64 trattato = com("1", "E", "1900");
  ASSERT_EQ(trattato, 5);
  const qint64 altro = com("1", "M", "1992");
  const qint64 corte = com("6", "J", Campo());
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", 1}, {"anno", "1990"}, {"numero", "314"}}),
            "31990L0314");
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", vuoto}, {"articolo", "1"}}), "");
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", nullo}, {"articolo", "1"}}), "");
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", senzaAnno}, {"articolo", "1"}}), "1E001");
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", altro}, {"articolo", "1"}}), "11992M001");
  EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", trattato}}), "");
  EXPECT_EQ(Celex({{"TP", "GEC"}, {"fonte", corte}, {"altro", "C-1/99"}}), "61999CJ0001");
  EXPECT_EQ(Celex({{"TP", "GEC"}, {"fonte", corte}, {"altro", "C-1/99"}, {"ordinanza", true}}),
            "61999CO0001");
  EXPECT_EQ(Celex({{"TP", "GEC"}, {"fonte", corte}}), " ");
  for (const auto& [prefisso, celex] : {std::pair("2002A", "11997E001"),
                                        {"2003A", "12002E001"},
                                        {"2010A", "12002E001"},
                                        {"", "11997E001"}}) {
    prova.stato.PrefissoDoc = prefisso;
    EXPECT_EQ(Celex({{"TP", "NIC"}, {"fonte", trattato}, {"articolo", "1"}}), celex) << prefisso;
  }
}

TEST_F(FontiEtichettateTest, AKeyWithoutItsRowEndsTheRun) {
  for (const char* tp : {"LIO", "NIC", "NIT", "FCC"}) {
    EXPECT_EQ(Sola({{"TP", tp}, {"fonte", 0}}), "3021") << tp;
    EXPECT_EQ(Sola({{"TP", tp}, {"fonte", Campo()}}), "3021") << tp;
  }
  for (const char* chiave : {"IDStato", "IDMinistero", "IDAmministrazione", "IDAutorita",
                             "IDRegione", "IDProvincia", "IDCitta", "IDSezione"}) {
    EXPECT_EQ(Sola({{"TP", "NS"}, {chiave, 99}}), "3021") << chiave;
  }
  EXPECT_EQ(Sola({{"TP", Campo()}}), "94");
}

TEST_F(FontiEtichettateTest, OnlyTheEuFamilyNeedsASixteenBitNumber) {
  EXPECT_EQ(Celex({{"IDFonte", 32767}, {"TP", "NIC"}, {"fonte", 1}}), "3L0000");
  EXPECT_EQ(Sola({{"IDFonte", 32768}, {"TP", "NIC"}, {"fonte", 1}}), "6");
  EXPECT_EQ(Celex({{"IDFonte", 32769}, {"TP", "LIO"}, {"fonte", 1}}), " ");
}

TEST_F(FontiEtichettateTest, LengthDecidesTheNumberOfFields) {
  EXPECT_EQ(prova.Etichettate().campi, "");
  const QString articolo(970, u'x');
  prova.Fonte({{"TP", "NS"}, {"articolo", articolo}});
  EXPECT_EQ(prova.Etichettate().campi, "22^tNS^f ^x ^y ^m ^d ^n ^a" + articolo.toStdString() +
                                           "^j ^c \n22^k ^l ^g ^s ^o ^e ^r ^p ^i ^z ^u \n");
}

}  // namespace
}  // namespace torvi
