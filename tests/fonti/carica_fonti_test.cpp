#include "fonti/carica_fonti.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "fonti/righe_fonte.h"

namespace torvi {
namespace {

using Valori = std::initializer_list<std::pair<const char*, Campo>>;

class Caricamento : public testing::Test {
 protected:
  qint64 Riga(const char* tabella, Valori valori) const {
    return Aggiungi(stato.DbArchivio, QString::fromUtf8(tabella), valori);
  }
  void Fonte(Valori valori) const {
    Riga("LegameDocFonte", {{"IDDoc", 7}, {"IDFnt", Riga("TabFonte", valori)}});
  }
  // The one source of document 7.
  RigaFonte Letta(Valori valori) {
    stato.DbArchivio.Execute(QStringLiteral("delete * from LegameDocFonte"));
    Fonte(valori);
    EXPECT_EQ(CaricaFonti(stato, 7).size(), 1);
    return stato.RigheFonte.at(0);
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  UnitaDiScrittura unita{stato.DbArchivio};
};

TEST_F(Caricamento, CopiesEveryColumnIntoItsField) {
  Riga("TabFonteInterna", {{"FonteNorm", "altra"}});
  const qint64 atto = Riga("TabFonteInterna", {{"FonteNorm", "r.d.l."}});
  const auto nome = [this](const char* tabella, const char* colonna, const char* testo) {
    Riga(tabella, {{colonna, "primo"}});
    return Riga(tabella, {{colonna, testo}});
  };
  const RigaFonte riga =
      Letta({{"TP", "LIO"},
             {"fonte", atto},
             {"testo", "art. 1 *LIO* coda*"},
             {"articolo", "1"},
             {"comma", "2"},
             {"lettera", "c"},
             {"allegato", "4"},
             {"ripa", "bis"},
             {"ripc", "ter"},
             {"numero", "7"},
             {"numeroP", "8"},
             {"giorno", "9"},
             {"mese", "07"},
             {"anno", "1999"},
             {"altro", "dodici"},
             {"ordinanza", true},
             {"IDRegione", nome("TabRegione", "CodRegione", "TO")},
             {"IDProvincia", nome("TabProvincia", "CodProvincia", "PI")},
             {"IDCitta", nome("TabCitta", "citta", "Pisa")},
             {"IDMinistero", nome("TabMinistero", "MinisteroNorm", "m. int.")},
             {"IDAmministrazione", nome("TabAmministrazione", "AmministrazioneNorm", "a. gen.")},
             {"IDAutorita", nome("TabAutorita", "AutoritaNorm", "a. gar.")},
             {"IDSezione", nome("TabSezione", "sigla", "s.u.")}});
  RigaFonte attesa;
  attesa.IDFonte = 1;
  attesa.FonteNorm = "r.d.l.";
  attesa.TP = "LIO";
  attesa.Testo = "art. 1 ";
  attesa.Articolo = "1";
  attesa.Comma = "2";
  attesa.Lettera = "c";
  attesa.Allegato = "4";
  attesa.RipA = "bis";
  attesa.RipC = "ter";
  attesa.Numero = "7";
  attesa.NumeroP = "8";
  attesa.Giorno = "9";
  attesa.Mese = "luglio";
  attesa.Anno = "1999";
  attesa.Altro = "dodici";
  attesa.Ordinanza = true;
  attesa.Regione = "TO";
  attesa.Provincia = "PI";
  attesa.Citta = "Pisa";
  attesa.Ministero = "m. int.";
  attesa.Amministrazione = "a. gen.";
  attesa.Autorita = "a. gar.";
  attesa.Sezione = "s.u.";
  EXPECT_TRUE(riga == attesa);
  EXPECT_TRUE(Letta({{"TP", "LIO"}, {"fonte", atto}, {"decreto", true}}).Decreto);
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
