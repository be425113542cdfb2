#include "export/classi.h"

#include <gtest/gtest.h>

#include "export/documento_di_prova.h"

namespace torvi {
namespace {

constexpr qint64 kDocumento = 3;

class Classi : public testing::Test {
 protected:
  Classi() {
    prova.stato.Dopo2000 = true;
    prova.Riga("TabClasse2000-S",
               {{"CodiceS", "BC002"}, {"sigla", "CIV"}, {"descrizione", "Contratti"}});
    prova.Riga("TabClasse2000-D", {{"CodiceD", "00456"}, {"descrizione", "Silenzio"}});
    prova.Riga("TabClasse1999", {{"Codice", "D9A"}, {"descrizione", "Varie"}});
    prova.Riga("TabClasse1999", {{"Codice", "D9AB"}, {"descrizione", "Altre"}, {"ID_PADRE", 3}});
  }
  Scritto Leggi() {
    return prova.Scrivi([this](ContestoEsportazione& contesto) {
      codici = LeggiClassi(contesto, kDocumento, "2001A0012");
    });
  }
  Scritto Decodifica(void (*decodificatore)(ContestoEsportazione&), const QString& codiciClasse) {
    return prova.Scrivi([&](ContestoEsportazione& contesto) {
      contesto.CodiciClasse = codiciClasse;
      decodificatore(contesto);
    });
  }
  DocumentiDiProva prova;
  QString codici;
};

TEST_F(Classi, PairsAreJoinedAndTheDoubtfulOnesTold) {
  prova.Coppia(kDocumento, {{"IDClasse2000-D", 1}});
  prova.Coppia(kDocumento, {{"IDClasse2000-D", 2}, {"Check", "1"}});
  prova.Coppia(kDocumento, {{"IDClasse2000-D", 2}, {"Check", "2"}, {"Classe2000-D", "no"}});
  prova.Coppia(kDocumento, {{"IDClasse2000-S", 2}});
  prova.Coppia(kDocumento, {{"IDClasse2000-D", Campo()}, {"Classe2000-D", ""}, {"Check", "3"}});
  prova.Coppia(kDocumento, {{"Classe2000-D", "*uno"}, {"Check", "2"}});
  prova.Coppia(kDocumento, {{"Classe2000-D", "*due"}, {"Check", "3"}});
  prova.Coppia(kDocumento, {{"Classe2000-D", "*tre"}, {"Check", "1"}});
  prova.Coppia(kDocumento + 1, {{"Classe2000-D", "altro"}});
  const Scritto scritto = Leggi();
  EXPECT_EQ(codici,
            "AM001;00123\\AM001;00456\\AM001;00456\\BC002\\AM001\\AM001;*uno\\AM001;*due\\"
            "AM001;*tre");
  EXPECT_EQ(scritto.errClasse,
            "Coppia non valida (2001A0012, record=3): AM001;00456\r\n"
            "Coppia asteriscata valida (2001A0012, record=3): AM001;*uno\r\n"
            "Coppia asteriscata non valida (2001A0012, record=3): AM001;*due\r\n");
  EXPECT_EQ(scritto.errori, "");
}

TEST_F(Classi, CodesBefore2000AreJoined) {
  prova.stato.Dopo2000 = false;
  prova.Codice1999(kDocumento, 2);
  prova.Codice1999(kDocumento, 1);
  EXPECT_EQ(Leggi().errori, "");
  EXPECT_EQ(codici, "A12\\A1");
}

TEST_F(Classi, ADocumentWithoutClassesIsToldInBothSchemes) {
  for (const bool dopo2000 : {true, false}) {
    prova.stato.Dopo2000 = dopo2000;
    const Scritto scritto = Leggi();
    EXPECT_EQ(codici, "");
    EXPECT_EQ(scritto.errori, "Manca classificazione: 2001A0012, record=3\r\n");
    EXPECT_EQ(scritto.errClasse, "");
  }
}

// Pairs one by one or grouped; older codes with their parent.
TEST_F(Classi, CodesAreDecodedByTheSchemeOfTheYear) {
  struct Caso {
    bool dopo2000;
    const char* codici;
    std::string storico;
    std::string cassazione;
  };
  const Caso kCasi[] = {
      {true, "AM001;00123\\AM001;00456\\BC002",
       "AMM|Atti amministrativi; Procedimento\\AMM|Atti amministrativi; Silenzio\\CIV|Contratti",
       "AMM Atti amministrativi; Procedimento; Silenzio\\CIV Contratti"},
      {true, "AM001;00123\\BC002\\AM001;00456",
       "AMM|Atti amministrativi; Procedimento\\CIV|Contratti\\AMM|Atti amministrativi; Silenzio",
       "AMM Atti amministrativi; Procedimento\\CIV Contratti\\AMM Atti amministrativi; Silenzio"},
      {true, "BC002;*a", "CIV|Contratti; *a", "CIV Contratti; *a"},
      {true, "BC002;libero testo", "CIV|Contratti; libero testo", "CIV Contratti; libero testo"},
      {true, "BC002;00123 e altro", "CIV|Contratti; Procedimento", "CIV Contratti; Procedimento"},
      {false, "A1", "A1. (Padre)", "A1. A1 (Padre)"},
      {false, "A12", "A1.2. (Padre: Figlio)", "A1.2. A12 (Padre: Figlio)"},
      {false, "A12\\A1", "A1.2. (Padre: Figlio)\\A1. (Padre)",
       "A1.2. A12 (Padre: Figlio)\\A1. A1 (Padre)"},
      {false, "D9A", "D9.A. (Varie)", "D9.A. D9A (Varie)"},
      {false, "d9a", "d9.a. (Varie)", "d9.a. d9a (Varie)"},
      {false, "D9AB", "D9.A.B. (Varie: Altre)", "D9.A.B. D9AB (Varie: Altre)"},
  };
  for (const Caso& caso : kCasi) {
    SCOPED_TRACE(caso.codici);
    prova.stato.Dopo2000 = caso.dopo2000;
    EXPECT_EQ(Decodifica(ScriviClassiStorico, caso.codici).campi,
              (caso.dopo2000 ? "24" : "12") + caso.storico + "\n");
    EXPECT_EQ(Decodifica(ScriviClassiCassazione, caso.codici).campi,
              (caso.dopo2000 ? "25" : "12") + caso.cassazione + "\n");
  }
}

TEST_F(Classi, LongDecodingsBecomeSeveralFields) {
  prova.Riga("TabClasse2000-S",
             {{"CodiceS", "LU003"}, {"sigla", "L"}, {"descrizione", QString(990, u'x')}});
  const std::string testo(990, 'x');
  EXPECT_EQ(Decodifica(ScriviClassiStorico, "LU003;*lungo testo").campi,
            "24L|" + testo + "; \n24*lungo testo\n");
  EXPECT_EQ(Decodifica(ScriviClassiCassazione, "LU003;*lungo testo").campi,
            "25L " + testo + "; \n25*lungo testo\n");
}

TEST_F(Classi, ACodeWithoutRowEndsTheRun) {
  EXPECT_EQ(Decodifica(ScriviClassiStorico, "ZZ999").errore, 3021);
  EXPECT_EQ(Decodifica(ScriviClassiCassazione, "AM").errore, 3021);
  prova.stato.Dopo2000 = false;
  EXPECT_EQ(Decodifica(ScriviClassiStorico, "Z9").errore, 3021);
  EXPECT_EQ(Decodifica(ScriviClassiCassazione, "A1\\Z99").errore, 3021);
  prova.stato.Dopo2000 = true;
  prova.Coppia(kDocumento, {{"IDClasse2000-D", 99}});
  EXPECT_EQ(Leggi().errore, 3021);
}

TEST(PuntaCodice, DotsEveryCharacterButTheFirst) {
  EXPECT_EQ(PuntaCodice(""), "");
  EXPECT_EQ(PuntaCodice("A"), "A");
  EXPECT_EQ(PuntaCodice("A1"), "A1.");
  EXPECT_EQ(PuntaCodice("A12"), "A1.2.");
  EXPECT_EQ(PuntaCodice("D9A"), "D9.A.");
}

}  // namespace
}  // namespace torvi
