#include "classificazione/codici_classe.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

class Codici : public testing::Test {
 protected:
  CartellaDiProva cartella;
  Database archivio = cartella.NuovaConsegna();
  UnitaDiScrittura unita{archivio};
};

TEST_F(Codici, TellWhatTheyStandFor) {
  Aggiungi(archivio, "TabClasse2000-S",
           {{"CodiceS", "S0001"}, {"sigla", "DC"}, {"descrizione", "diritto"}});
  Aggiungi(archivio, "TabClasse2000-S", {{"CodiceS", "S0002"}});
  Aggiungi(archivio, "TabClasse2000-D", {{"CodiceD", "D0001"}, {"descrizione", "uno"}});
  EXPECT_EQ(DescrizioneSistematico(archivio, "S0001"), "DC - diritto");
  EXPECT_EQ(DescrizioneSistematico(archivio, "S0002"), " - ");
  EXPECT_EQ(DescrizioneDescrittore(archivio, "D0001"), "uno");
  EXPECT_FALSE(DescrizioneSistematico(archivio, "D0001"));
  EXPECT_FALSE(DescrizioneDescrittore(archivio, "S'\"*"));
}

TEST_F(Codici, Before2000HaveAParentUnlessTheyAreRoots) {
  const auto aggiungi = [this](const char* codice, const Campo& padre) {
    return Aggiungi(archivio, "TabClasse1999",
                    {{"Codice", codice},
                     {"descrizione", QStringLiteral("voce %1").arg(codice)},
                     {"ID_PADRE", padre}});
  };
  const qint64 radice = aggiungi("A1", {});
  aggiungi("d91", radice);
  aggiungi("A12", radice);
  aggiungi("D81", {});
  aggiungi("A1234", 99);
  struct Caso {
    const char* codice;
    bool radice;
    const char* trovato;  // description|parent, empty when there is none
  };
  for (const auto& [codice, eRadice, trovato] :
       {Caso{"A1", true, "voce A1|"}, Caso{"D91", true, "voce d91|"},
        Caso{"d91", true, "voce d91|"}, Caso{"A12", false, "voce A12|A1 - voce A1"},
        Caso{"D81", false, ""}, Caso{"A1234", false, ""}, Caso{"ZZ", true, ""},
        Caso{"Z\"Z'", false, ""}}) {
    const auto voce = CercaCodice1999(archivio, codice);
    EXPECT_EQ(CodiceRadice(codice), eRadice) << codice;
    EXPECT_EQ(voce ? QString(voce->descrizione + '|' + voce->padre) : QString(), trovato) << codice;
  }
}

TEST_F(Codici, ListTheAsteriskedTerms) {
  EXPECT_EQ(NumeroErrore([&] { (void)TerminiAsteriscati(archivio); }), 3021);
  for (const auto& [ns, nd] : {std::pair{"S2", "*zeta"}, std::pair{"S1", "*beta"},
                               std::pair{"S3", "*beta"}, std::pair{"S1", "*alfa"}}) {
    Aggiungi(archivio, "TabLegameDSA", {{"NS", ns}, {"ND", nd}});
  }
  EXPECT_EQ(TerminiAsteriscati(archivio).join('|'), "*alfa|*beta|*zeta");
  EXPECT_EQ(CoppieAsteriscate(archivio).join('|'),
            "S1 --- *alfa|S1 --- *beta|S3 --- *beta|S2 --- *zeta");
}

}  // namespace
}  // namespace torvi
