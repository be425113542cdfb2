#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "comune/citazioni.h"
#include "comune/tavole.h"
#include "fonti/convenzioni.h"
#include "fonti/elenchi_fonte.h"
#include "fonti/interroga_catalogo.h"
#include "fonti/trattati.h"
#include "fonti/voci_altra.h"
#include "fonti/voci_interna.h"

namespace torvi {
namespace {

class Elenchi : public testing::Test {
 protected:
  qint64 Riga(const char* tabella, Valori valori) { return Aggiungi(archivio, tabella, valori); }
  void Convenzione(int numero) {
    const QString n = QString::number(numero);
    Riga("TabFonte", {{"fonte", 30},
                      {"TP", "NIC"},
                      {"testo", QStringLiteral("c%1").arg(n)},
                      {"giorno", n},
                      {"mese", "9"},
                      {"anno", "1968"},
                      {"numero", numero == 1 ? Campo() : Campo(QStringLiteral("n%1").arg(n))},
                      {"altro", QStringLiteral("l'\"a\" %1").arg(n)}});
  }

  CartellaDiProva cartella;
  Database archivio = cartella.NuovaConsegna();
};

TEST_F(Elenchi, OfferWhatTheFileHolds) {
  QList<std::pair<QString, QStringList>> elenchi = {
      {"articolo", RipartizioniArticolo()},
      {"comma", RipartizioniComma()},
      {"altro diritto", RipartizioniAltroDiritto()},
      {"mesi", NomiMesi()},
      {"regioni", Regioni()},
      {"province", VociElenco(archivio, ElencoInfo::Province)},
      {"catalogo", VociCatalogo()},
      {"interna 2", ComboFonteInterna(archivio, 2)},
      {"interna 3", ComboFonteInterna(archivio, 3)}};
  for (int tab = 0; tab <= 4; ++tab) {
    elenchi.append({QStringLiteral("altra %1").arg(tab), ComboFonteAltra(tab)});
  }
  QString testo;
  for (const auto& [nome, voci] : elenchi) testo += nome + ": " + voci.join('|') + '\n';
  EXPECT_EQ(testo.toStdString(), Dati("elenchi_fonti.txt"));
}

TEST_F(Elenchi, ListActsByTheirPlaceInTheTree) {
  for (const auto& [nome, liv1, liv2] :
       {std::tuple{"l.", "2", "1"}, std::tuple{"Cost.", "0", ""}, std::tuple{"c.c.", "1", ""},
        std::tuple{"d.l.", "2", "1"}, std::tuple{"c.c.n.l.", "2", "a"},
        std::tuple{"T. Acque", "3", "7"}, std::tuple{"T. mil.", "3", "8"},
        std::tuple{"Arb.", "3", "9"}, std::tuple{"App.", "3", "3"}, std::tuple{"c.p.", "1", "x"},
        std::tuple{"Concil.", "3", "a"}}) {
    Riga("TabFonteInterna", {{"FonteNorm", nome}, {"liv1", liv1}, {"liv2", liv2}});
  }
  EXPECT_EQ(ComboFonteInterna(archivio, 4).join('|'), "Cost.");
  EXPECT_EQ(ComboFonteInterna(archivio, 1).join('|'), "c.c.|c.p.");
  for (const auto& [voce, atti] : {std::pair{"Atti statali aventi forza di legge", "l.|d.l."},
                                   std::pair{"Contratti collettivi", "c.c.n.l."},
                                   std::pair{"Leggi e statuti provinciali", ""}}) {
    EXPECT_EQ(ListaFonteInterna(archivio, "2", TrovaVoceInterna(2, voce)->liv2).join('|'), atti);
  }
  const char* const alternative =
      "Forme di risoluzione delle controversie alternative alla giurisdizione";
  for (const auto& [voce, giudici] : {std::pair{"Giurisprudenza ordinaria", "App."},
                                      std::pair{"Giurisprudenza speciale", "T. Acque|T. mil."},
                                      std::pair{alternative, "Arb.|Concil."}}) {
    EXPECT_EQ(ListaFonteInterna(archivio, "3", TrovaVoceInterna(3, voce)->liv2).join('|'), giudici);
  }
}

TEST_F(Elenchi, ListNamesByTheAlphabetOrAsTheyCame) {
  for (const auto& [tabella, nome] :
       {std::pair{"TabCitta", "citta"}, std::pair{"TabSezione", "sigla"},
        std::pair{"TabMinistero", "MinisteroNorm"},
        std::pair{"TabAmministrazione", "AmministrazioneNorm"},
        std::pair{"TabAutorita", "AutoritaNorm"}}) {
    for (const char* valore : {"zeta", "alfa", "Beta"}) Riga(tabella, {{nome, valore}});
  }
  EXPECT_EQ(VociSezione(archivio).join('|'), "alfa|Beta|zeta");
  EXPECT_EQ(VociElenco(archivio, ElencoInfo::Citta).join('|'), "alfa|Beta|zeta");
  EXPECT_TRUE(VociElenco(archivio, ElencoInfo::Nessuno).isEmpty());
  for (const ElencoInfo elenco :
       {ElencoInfo::Ministeri, ElencoInfo::Amministrazioni, ElencoInfo::Autorita}) {
    EXPECT_EQ(VociElenco(archivio, elenco).join('|'), "zeta|alfa|Beta");
  }
}

TEST_F(Elenchi, ListActsOfOtherLawByTheirType) {
  for (const auto& [tabella, nome] :
       {std::pair{"TabFonteInt", "FonteInt"}, std::pair{"TabFonteCom", "FonteCom"},
        std::pair{"TabFonteCan", "FonteCan"}}) {
    for (int i = 8; i > 0; --i) {
      Riga(tabella, {{nome, QStringLiteral("%1%2").arg(nome).arg(i)}, {"Tipo", (i - 1) % 4 + 1}});
    }
  }
  const QString romane =
      "giuridiche (*FSRG*)|papirologiche (*FSRP*)|epigrafiche (*FSRE*)|"
      "letterarie (*FSRL*)";
  const QMap<QString, QString> attese = {{"NIA", "FonteInt2|FonteInt6"},
                                         {"GEI", "FonteInt3|FonteInt7"},
                                         {"NIC T", "FonteCom1|FonteCom5"},
                                         {"NIC D", "FonteCom2|FonteCom6"},
                                         {"NIC C", "FonteCom4|FonteCom8"},
                                         {"GEC", "FonteCom3|FonteCom7"},
                                         {"FCC", "C. Iur. Can."},
                                         {"FCG", "FonteCan7|FonteCan3"},
                                         {"FSR", romane},
                                         {"FSG", QString(romane).replace("FSR", "FSG")},
                                         {"FSB", QString(romane).replace("FSR", "FSB")},
                                         {"FSA", QString(romane).replace("FSR", "FSA")}};
  for (const VoceAltra& voce : VociAltra()) {
    EXPECT_EQ(ListaFonteAltra(archivio, voce).join('|'), attese.value(voce.codice)) << voce.codice;
  }
}

TEST_F(Elenchi, TreatiesAreListedAndFoundByTheirName) {
  Recordset vuota = archivio.OpenRecordset("TabNIT");
  EXPECT_EQ(ElencaNIT(vuota).join('|'), "");
  AggiungiAttiCitati(archivio);
  Riga("TabNIT", {{"fonte", "Conv. L'Aja"}});
  Recordset tabNIT = archivio.OpenRecordset("TabNIT");
  for (int volta = 0; volta < 2; ++volta) {
    EXPECT_EQ(ElencaNIT(tabNIT).join('|'),
              "1) Conv. Alfa 1950|2) Tratt. Beta|3) Acc. Gamma|4) Conv. L'Aja");
  }
  for (const auto& [modo, parole, trovati] :
       {std::tuple{ModoCampo::Intero, "tratt. beta", "2) Tratt. Beta"},
        std::tuple{ModoCampo::Intero, "Beta", ""},
        std::tuple{ModoCampo::Tutte, "a conv.", "1) Conv. Alfa 1950|4) Conv. L'Aja"},
        std::tuple{ModoCampo::AlmenoUna, "beta gamma", "2) Tratt. Beta|3) Acc. Gamma"},
        std::tuple{ModoCampo::Sequenza, "v. l'a", "4) Conv. L'Aja"},
        std::tuple{ModoCampo::Sequenza, "alfa conv.", ""}}) {
    EXPECT_EQ(CercaNIT(archivio, modo, parole).join('|'), trovati) << parole;
  }
}

TEST_F(Elenchi, ConventionsCitedAlreadyHaveElevenPlaces) {
  EXPECT_TRUE(ElencaConvenzioni(archivio).linee.isEmpty());
  Riga("TabFonte", {{"fonte", 30}, {"TP", "NIA"}, {"testo", "x"}});
  Riga("TabFonte", {{"fonte", 29}, {"TP", "NIC"}, {"testo", "x"}});
  Convenzione(1);
  EXPECT_EQ(ElencaConvenzioni(archivio).linee.join('|'), "1) c1");
  for (int i = 2; i <= 11; ++i) Convenzione(i);
  const Convenzioni piene = ElencaConvenzioni(archivio);
  EXPECT_EQ(piene.linee.join('|'),
            "1) c1|2) c2|3) c3|4) c4|5) c5|6) c6|7) c7|8) c8|9) c9|10) c10|11) c11");
  for (const auto& [linea, valori] : {std::pair{"1) c1", "1|9|1968||l'\"a\" 1"},
                                      std::pair{"11) 3) x", "11|9|1968|n11|l'\"a\" 11"}}) {
    const auto& [giorno, mese, anno, numero, altro] = ConvenzioneScelta(piene, linea);
    EXPECT_EQ((QStringList{giorno, mese, anno, numero, altro}.join('|')), valori);
  }
  for (const char* linea : {"12) x", "0) x", "", "x"}) {
    EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ConvenzioneScelta(piene, linea)); }), 9);
  }
  Convenzione(12);
  EXPECT_EQ(NumeroErrore([&] { static_cast<void>(ElencaConvenzioni(archivio)); }), 9);
}

}  // namespace
}  // namespace torvi
