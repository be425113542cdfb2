#include "export/celex.h"

#include <gtest/gtest.h>

namespace torvi {
namespace {

TEST(Celex, TreatiesByArticle) {
  struct Caso {
    const char* articolo;
    const char* attesa;
  };
  constexpr Caso kCasi[] = {
      {"", ""},
      {"1", "11997E001"},
      {"12", "11997E012"},
      {"30", "11997E030"},
      {"234", "11997E234"},
      {"1234", "11997E1234"},
      {"12A", "11997E012A"},
      {"234b", "11997E234b"},
      {"1234b", "11997E1234b"},
      {"K3", "11997EK03"},
      {"k3", "11997Ek03"},
      {"J9", "11997EJ09"},
      {"K12", "11997EK12"},
      {"K", "11997EK"},
      {"A3", "11997EA3"},
      {"Z", "11997EZ"},
      {"z", "11997Ez"},
      {"\xC3\x89", "11997E000\xC3\x89"},  // É is no letter from A to Z
      {"(1)", "11997E0(1)"},
  };
  for (const Caso& caso : kCasi) {
    const DatiCelex dati = {.Settore = "1",
                            .Codice = "E",
                            .Articolo = caso.articolo,
                            .AnnoF = "1997",
                            .Altro = "C-1/90",
                            .Numero = "5",
                            .Anno = "2001"};
    EXPECT_EQ(NumeroCelex(dati).toStdString(), caso.attesa) << caso.articolo;
  }
}

TEST(Celex, DerivedLawAndOtherSectors) {
  const auto numero = [](const char* settore, const char* numeroAtto) {
    return NumeroCelex({.Settore = settore,
                        .Codice = "L",
                        .Articolo = "3",
                        .AnnoF = "1997",
                        .Altro = "C-1/90",
                        .Numero = numeroAtto,
                        .Anno = "1990"})
        .toStdString();
  };
  EXPECT_EQ(numero("3", "314"), "31990L0314");
  EXPECT_EQ(numero("3", ""), "31990L0000");
  EXPECT_EQ(numero("3", "12345"), "31990L12345");
  for (const char* settore : {"", "2", "4", "5", "7", "9", "33", " 3"}) {
    EXPECT_EQ(numero(settore, "314"), "") << settore;
  }
}

TEST(Celex, CasesByCourtAndMarker) {
  struct Caso {
    const char* codice;
    bool ordinanza;
    const char* altro;
    const char* attesa;
  };
  constexpr Caso kCasi[] = {
      {"J", false, "C-123/99", "61999CJ0123"},
      {"J", true, "C-123/99", "61999CO0123"},
      {"A", false, "T-4/02", "62002TJ0004"},
      {"A", true, "T-4/02", "62002TO0004"},
      {"F", false, "F-1/05", "62005FJ0001"},
      {"F", true, "F-1/05", "62005FO0001"},
      {"J", false, "causa 12/03", "62003CJ0012"},
      {"A", true, "causa 12/03", "62003TO0012"},
      {"J", false, "c. riun. C-46/93 e C-48/93", "61993CJ0046"},
      {"J", false, "causa 7/68, poi C-9/70", "61970CJ0009"},  // the marker before the word
      {"J", false, "a/b C-12345/50", "61950CJ12345"},
      {"J", false, "C-1/49", "62049CJ0001"},
      {"J", false, "C-1/2003", "62020CJ0001"},
      {"J", false, "C-1/", "620CJ0001"},
      {"J", false, "", " "},
      {"J", false, "C-123", " "},
      {"J", false, "causa 123-99", " "},
      {"J", false, "c-123/99", " "},
      {"J", false, "causa:12/03", " "},
      {"J", false, "T-123/99", " "},
      {"A", false, "C-123/99", " "},
      {"X", false, "C-123/99", " "},
      {"", false, "C-123/99", " "},
      {"j", false, "C-123/99", " "},
  };
  for (const Caso& caso : kCasi) {
    EXPECT_EQ(NumeroCelex({.Settore = "6",
                           .Codice = caso.codice,
                           .Articolo = "3",
                           .AnnoF = "1997",
                           .Altro = caso.altro,
                           .Numero = "5",
                           .Anno = "2001",
                           .Ordinanza = caso.ordinanza})
                  .toStdString(),
              caso.attesa)
        << caso.codice << " " << caso.altro;
  }
}

}  // namespace
}  // namespace torvi
