#include "classificazione/esci_classificazione.h"

#include <gtest/gtest.h>

#include "classificazione/righe_classe.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"

namespace torvi {
namespace {

class UscitaDallaForma : public testing::Test {
 protected:
  UscitaDallaForma() {
    for (const auto& [tabella, coppia] :
         {std::pair{"TabLegameDS", std::pair{"S0001", "D0001"}},
          std::pair{"TabLegameDS", std::pair{"S0001", "A -->"}},
          std::pair{"TabLegameDSA", std::pair{"S0001", "*dell'arte"}}}) {
      Aggiungi(stato.DbArchivio, tabella, {{"NS", coppia.first}, {"ND", coppia.second}});
    }
  }
  // The lines of the list after "Esci e salva".
  std::string Dopo(const CampiClassificazione& campi, qint16 indice = -1) {
    EsciClassificazione(stato, dialoghi, indice, campi);
    return RigheLista(stato.RigheClasse).join('|').toStdString();
  }
  std::string Dopo1999(const QString& codice, qint16 indice = -1) {
    EsciClassificazione1999(stato, dialoghi, indice, codice);
    return RigheLista(stato.RigheClasse).join('|').toStdString();
  }
  void AttendeAvviso(Risposta risposta) {
    dialoghi.AttendeDomanda("Immettere il codice del sistematico!", "Attenzione!",
                            Pulsanti::OkAnnulla, risposta);
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  DialoghiScritti dialoghi;
};

TEST_F(UscitaDallaForma, MakesNewRows) {
  struct Caso {
    CampiClassificazione campi;
    const char* righe;
  };
  const std::vector<Caso> casi = {
      {{"S0001", "", {}, ""}, "0 - S0001; "},
      {{"S0001", "", {"D0001 --> uno", "D0002 --> due", "D0001 --> uno"}, ""},
       "0 - S0001; D0001|1 - S0001; D0002|0 - S0001; D0001"},
      {{"S0002", "", {"D0001 --> uno"}, ""}, "1 - S0002; D0001"},
      // Longer codes are cut, shorter ones take part of the arrow.
      {{"S0001", "", {"D00012 --> x", "A --> y"}, ""}, "0 - S0001; D0001|0 - S0001; A -->"},
      // Next to a list, what stands in the text fields does not count.
      {{"S0001", "D0002", {"D0001 --> uno"}, "*dell'arte"}, "0 - S0001; D0001"},
      {{"S0001", "D0001", {}, ""}, "0 - S0001; "},
      {{"S0001", "D0001", {}, "*dell'arte"}, "2 - S0001; *dell'arte"},
      {{"S0002", "", {}, "*dell'arte"}, "3 - S0002; *dell'arte"},
      {{"S0001", "", {}, "dell'arte"}, "3 - S0001; dell'arte"},
  };
  stato.NuovaClasse = true;
  for (const Caso& caso : casi) {
    stato.RigheClasse.clear();
    EXPECT_EQ(Dopo(caso.campi), caso.righe);
    for (const RigaClasse& riga : stato.RigheClasse) EXPECT_TRUE(riga.Nuova && !riga.Cancellata);
  }
  EXPECT_EQ(Dopo({"S0009", "", {}, ""}), "3 - S0001; dell'arte|0 - S0009; ");
}

TEST_F(UscitaDallaForma, ChangesTheChosenRow) {
  struct Caso {
    CampiClassificazione campi;
    const char* riga;
  };
  const std::vector<Caso> casi = {
      {{"S0001", "D0001", {}, "*dell'arte"}, "0 - S0001; D0001"},
      {{"S0001", "D0002", {}, ""}, "1 - S0001; D0002"},
      {{"S0001", "", {}, ""}, "0 - S0001; "},
      {{"S0001", "", {}, "*dell'arte"}, "2 - S0001; *dell'arte"},
      {{"S0002", "", {}, "*dell'arte"}, "3 - S0002; *dell'arte"},
  };
  for (const Caso& caso : casi) {
    stato.RigheClasse = {{1, "P", "", 0, false, false}, {2, "S", "*x", 3, false, true}};
    EXPECT_EQ(Dopo(caso.campi, 1), "0 - P; |DEL--" + std::string(caso.riga));
    EXPECT_EQ(stato.RigheClasse[1].IDClasse, 2);
    EXPECT_EQ(Dopo({"Z", "", {}, ""}, -1), "0 - P; |DEL--" + std::string(caso.riga));
  }
  EXPECT_EQ(NumeroErrore([&] { Dopo({"S0001", "", {}, ""}, 2); }), 9);
}

TEST_F(UscitaDallaForma, WritesOneCodeBefore2000) {
  stato.NuovaClasse = true;
  EXPECT_EQ(Dopo1999("A12"), "0 - A12; ");
  EXPECT_TRUE(stato.RigheClasse[0].Nuova);
  stato.NuovaClasse = false;
  stato.RigheClasse = {{1, "A1", "x", 2, false, true}, {2, "B1", "", 0, false, true}};
  EXPECT_EQ(Dopo1999("C3", 0), "0 - C3; |DEL--0 - B1; ");
  EXPECT_EQ(Dopo1999("C4", -1), "0 - C3; |DEL--0 - B1; ");
  EXPECT_EQ(NumeroErrore([&] { Dopo1999("C3", 2); }), 9);
}

TEST_F(UscitaDallaForma, NeedsASystematicCode) {
  for (const bool nuova : {false, true}) {
    stato.NuovaClasse = nuova;
    stato.RigheClasse = {{1, "P", "", 0, false, false}};
    AttendeAvviso(Risposta::Annulla);
    EXPECT_EQ(Dopo({"", "D0001", {"D0001 --> uno"}, "*x"}, 0), "0 - P; ");
    AttendeAvviso(Risposta::Ok);
    EXPECT_EQ(Dopo1999("", 0), "0 - P; ");
  }
}

// A code is never escaped; what was there stays.
TEST_F(UscitaDallaForma, FailsOnAnApostropheInACodeAndLeavesTheRows) {
  stato.RigheClasse = {{1, "P", "", 0, false, false}};
  EXPECT_EQ(NumeroErrore([&] { Dopo({"S'1", "D0001", {}, ""}, 0); }), 3075);
  stato.NuovaClasse = true;
  EXPECT_EQ(NumeroErrore([&] { Dopo({"S0001", "", {"D0001 --> 1", "D'001 --> 2"}, ""}); }), 3075);
  EXPECT_EQ(RigheLista(stato.RigheClasse).join('|'), "0 - P; ");
}

TEST(RigheClasse, DifferBeforeAnEmptyDescriptor) {
  EXPECT_EQ(RigaListaCaricata({1, "A12", "", 0, false, false}), "0 - A12");
  EXPECT_EQ(RigaListaCaricata({1, "10", "ABC12", 1, false, false}), "1 - 10; ABC12");
  EXPECT_EQ(RigaDescrittore("D0001", "uno"), "D0001 --> uno");
}

}  // namespace
}  // namespace torvi
