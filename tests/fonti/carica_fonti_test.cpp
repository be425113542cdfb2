#include "fonti/carica_fonti.h"

#include <gtest/gtest.h>

#include "cli/json_fonte.h"
#include "comune/cartella_di_prova.h"
#include "comune/citazioni.h"
#include "fonti/righe_fonte.h"

namespace torvi {
namespace {

class Caricamento : public testing::Test {
 protected:
  qint64 Riga(const char* tabella, Valori valori) const {
    return Aggiungi(stato.DbArchivio, tabella, valori);
  }
  void Fonte(Valori valori) const {
    Riga("LegameDocFonte", {{"IDDoc", 7}, {"IDFnt", Riga("TabFonte", valori)}});
  }
  // The one source of document 7.
  RigaFonte Letta(Valori valori) {
    stato.DbArchivio.Execute("delete * from LegameDocFonte");
    Fonte(valori);
    EXPECT_EQ(CaricaFonti(stato, 7).size(), 1);
    return stato.RigheFonte.at(0);
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  UnitaDiScrittura unita{stato.DbArchivio};
};

TEST_F(Caricamento, CopiesEveryColumnIntoItsField) {
  // Each name is the second row of its table.
  for (const auto& [tabella, colonna, nome] :
       {std::tuple{"TabFonteInterna", "FonteNorm", "r.d.l."},
        {"TabRegione", "CodRegione", "TO"},
        {"TabProvincia", "CodProvincia", "PI"},
        {"TabCitta", "citta", "Pisa"},
        {"TabMinistero", "MinisteroNorm", "m. int."},
        {"TabAutorita", "AutoritaNorm", "a. gar."},
        {"TabAmministrazione", "AmministrazioneNorm", "a. gen."},
        {"TabSezione", "sigla", "s.u."}}) {
    for (const char* testo : {"primo", nome}) Riga(tabella, {{colonna, testo}});
  }
  const Valori valori = {{"TP", "LIO"},       {"fonte", 2},       {"testo", "art. 1 *LIO* coda*"},
                         {"articolo", "1"},   {"comma", "2"},     {"lettera", "c"},
                         {"allegato", "4"},   {"ripa", "bis"},    {"ripc", "ter"},
                         {"numero", "7"},     {"numeroP", "8"},   {"giorno", "9"},
                         {"mese", "07"},      {"anno", "1999"},   {"altro", "dodici"},
                         {"ordinanza", true}, {"IDRegione", 2},   {"IDProvincia", 2},
                         {"IDCitta", 2},      {"IDMinistero", 2}, {"IDAmministrazione", 2},
                         {"IDAutorita", 2},   {"IDSezione", 2}};
  EXPECT_EQ(Mostra(Ridotta(JsonFonte(Letta(valori)))),
            R"({"Allegato":"4","Altro":"dodici","Amministrazione":"a. gen.","Anno":"1999",)"
            R"("Articolo":"1","Autorita":"a. gar.","Citta":"Pisa","Comma":"2",)"
            R"("FonteNorm":"r.d.l.","Giorno":"9","IDFonte":1,"Lettera":"c","Mese":"luglio",)"
            R"("Ministero":"m. int.","Numero":"7","NumeroP":"8","Ordinanza":true,)"
            R"("Provincia":"PI","Regione":"TO","RipA":"bis","RipC":"ter","Sezione":"s.u.",)"
            R"("TP":"LIO","Testo":"art. 1 "})");
  EXPECT_TRUE(Letta({{"TP", "LIO"}, {"fonte", 2}, {"decreto", true}}).Decreto);
}

TEST_F(Caricamento, FindsTheNameInTheCatalogueOfTheCode) {
  for (const auto& [tabella, nome] :
       {std::pair{"TabFonteInterna", "FonteNorm"}, std::pair{"TabFonteInt", "FonteInt"},
        std::pair{"TabFonteCom", "FonteCom"}, std::pair{"TabFonteCan", "FonteCan"}}) {
    Riga(tabella, {{nome, tabella}});
  }
  struct Caso {
    const char* tp;
    const char* nome;  // the catalogue's
    bool deveEsserci;
  };
  for (const auto& [tp, nome, deveEsserci] :
       {Caso{"LICO", "TabFonteInterna", true}, Caso{"GIO", "TabFonteInterna", true},
        Caso{"AC", "TabFonteInterna", true}, Caso{"NIT", "TabFonteInt", false},
        Caso{"NIA", "TabFonteInt", false}, Caso{"GEI", "TabFonteInt", false},
        Caso{"NIC", "TabFonteCom", false}, Caso{"GEC", "TabFonteCom", false},
        Caso{"FCC", "TabFonteCan", false}, Caso{"FCG", "TabFonteCan", false}, Caso{"NS", "", false},
        Caso{"GS", "", false}, Caso{"FCA", "", false}, Caso{"FSRG", "", false},
        Caso{"ACX", "", false}, Caso{"", "", false}}) {
    SCOPED_TRACE(tp);
    EXPECT_EQ(Letta({{"TP", tp}, {"fonte", 1}}).FonteNorm, nome);
    for (const Campo& perduta : {Campo(99), Campo()}) {
      const auto leggi = [&, tp = tp] {
        EXPECT_EQ(Letta({{"TP", tp}, {"fonte", perduta}}).FonteNorm, "");
      };
      EXPECT_EQ(NumeroErrore(leggi), deveEsserci ? 3021 : 0);
    }
  }
}

// A load that fails half way leaves no rows that a save would take for all there are.
TEST_F(Caricamento, StopsAtADanglingKeyOfASmallTable) {
  Riga("TabFonteInterna", {{"FonteNorm", "l."}});
  struct Caso {
    const char* colonna;
    bool interna;
    bool esterna;
  };
  for (const auto& [colonna, interna, esterna] :
       {Caso{"IDRegione", true, true}, Caso{"IDCitta", true, true}, Caso{"IDSezione", true, true},
        Caso{"IDProvincia", true, false}, Caso{"IDMinistero", true, false},
        Caso{"IDAmministrazione", true, false}, Caso{"IDAutorita", true, false},
        Caso{"IDStato", false, true}}) {
    SCOPED_TRACE(colonna);
    for (const auto& [tp, letta] : {std::pair{"GIA", interna}, std::pair{"FSI", esterna}}) {
      const auto leggi = [&, tp = tp, colonna = colonna](const Campo& valore) {
        return NumeroErrore([&] { Letta({{"TP", tp}, {"fonte", 1}, {colonna, valore}}); });
      };
      EXPECT_EQ(leggi(5), letta ? 3021 : 0) << tp;
      EXPECT_EQ(stato.RigheFonte.size(), letta ? 0U : 1U) << tp;
      EXPECT_EQ(leggi(Campo()), 0);
    }
  }
}

TEST_F(Caricamento, ReadsNamesOfOtherLaw) {
  for (const auto& [tabella, colonna] :
       {std::pair{"TabStato", "stato"}, std::pair{"TabSezione", "sigla"},
        std::pair{"TabRegione", "CodRegione"}, std::pair{"TabCitta", "citta"}}) {
    Riga(tabella, {{colonna, tabella}});
  }
  const RigaFonte riga =
      Letta({{"TP", "GS"}, {"IDStato", 1}, {"IDSezione", 1}, {"IDRegione", 1}, {"IDCitta", 1}});
  EXPECT_EQ(riga.Stato + riga.Sezione + riga.Regione + riga.Citta,
            "TabStatoTabSezioneTabRegioneTabCitta");
}

TEST_F(Caricamento, NamesMonthsAndTakesNullForEmpty) {
  for (const auto& [mese, nome] :
       {std::pair{Campo("07"), "luglio"}, std::pair{Campo("12"), "dicembre"},
        std::pair{Campo("0"), ""}, std::pair{Campo("13"), ""}, std::pair{Campo(), ""}}) {
    EXPECT_EQ(Letta({{"TP", "NS"}, {"mese", mese}}).Mese, nome);
  }
  RigaFonte vuota;
  vuota.IDFonte = 6;
  EXPECT_TRUE(Letta({}) == vuota);
}

TEST_F(Caricamento, ListsTheSourcesOfTheDocumentInTheOrderOfItsLinks) {
  Riga("TabFonteInterna", {{"FonteNorm", "l."}});
  Riga("LegameDocFonte", {{"IDDoc", 8}, {"IDFnt", 1}});
  Fonte({{"TP", "NIC"}, {"testo", "trattato *NIC*"}});
  Fonte({{"TP", "LIC"}, {"fonte", 1}, {"testo", "art. 3 Cost."}});
  Fonte({{"TP", "GS"}, {"testo", "Reno"}});
  EXPECT_EQ(CaricaFonti(stato, 7).join('|'), "trattato *NIC*|art. 3 Cost.|Reno*GS*");
  EXPECT_EQ(CaricaFonti(stato, 99), QStringList());
  EXPECT_TRUE(stato.RigheFonte.empty());
}

TEST(RigheFonte, ShowTheCodeByWhoWroteTheLinesLast) {
  struct Caso {
    const char* tp;
    bool caricata;
    bool dopoAltra;
  };
  for (const auto& [tp, caricata, dopoAltra] :
       {Caso{"LIO", false, false}, Caso{"GICO", false, false}, Caso{"AC", false, false},
        Caso{"NIT", true, true}, Caso{"GEC", true, true}, Caso{"FSRG", true, true},
        Caso{"NS", true, true}, Caso{"GS", true, true}, Caso{"NSX", false, true},
        Caso{"ACX", false, true}, Caso{"0", false, true}}) {
    SCOPED_TRACE(tp);
    RigaFonte riga;
    riga.TP = tp;
    riga.Testo = "t";
    const QString conCodice = QStringLiteral("t*%1*").arg(riga.TP);
    EXPECT_EQ(RigaLista(riga), caricata ? conCodice : "t");
    EXPECT_EQ(RigaLista(riga, RegolaLista::DopoAltra), dopoAltra ? conCodice : "t");
    EXPECT_EQ(RigaLista(riga, RegolaLista::DopoInterna), "t");
    riga.Cancellata = true;
    EXPECT_EQ(RigheLista({riga}).join('|'), "DEL--" + (caricata ? conCodice : QString("t")));
  }
}

TEST(RigheFonte, AreEmptiedButForTheirTwoChoices) {
  RigaFonte riga;
  riga.IDFonte = 5;
  riga.Testo = riga.Altro = riga.TP = "x";
  riga.Marca = riga.Cancellata = riga.Decreto = true;
  AzzeraFonte(riga);
  RigaFonte attesa;
  attesa.TP = "0";
  attesa.Decreto = true;
  EXPECT_TRUE(riga == attesa);
}

}  // namespace
}  // namespace torvi
