#include "export/urn.h"

#include <gtest/gtest.h>

#include "archive/errore.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

constexpr const char* kStato = "urn:nir:stato:decreto.presidente.repubblica:1959-06-15%3b393";
constexpr const char* kPresidente = "urn:nir:presidente.repubblica:decreto:1959-06-15%3b393";
constexpr const char* kSenzaDuePunti =
    "urn:nir:stato:decreto.presidente.repubblica%3b1959-06-15%3b393";
constexpr const char* kPuntoEVirgola = "urn:nir:stato:decreto.presidente.repubblica:1959-06-15;393";

std::string Estesa(const char* urn, PassoUrn passo, const char* valore, bool prima) {
  auto testo = QString::fromUtf8(urn);
  EstendiUrn(testo, passo, valore, prima);
  return testo.toStdString();
}

TEST(Urn, EachStepAndPositionSparesItsOwnSpellingOnly) {
  struct Caso {
    PassoUrn passo;
    bool prima;
    const char* guardia;
    const char* aggiunta;
  };
  constexpr Caso kCasi[] = {
      {PassoUrn::Anno, true, kStato, ":77"},
      {PassoUrn::Anno, false, kStato, ":77"},
      {PassoUrn::Mese, true, kPresidente, "-77"},
      {PassoUrn::Mese, false, kSenzaDuePunti, "-77"},
      {PassoUrn::Giorno, true, kPresidente, "-77"},
      {PassoUrn::Giorno, false, kStato, "-77"},
      {PassoUrn::Numero, true, kPresidente, "%3b77"},
      {PassoUrn::Numero, false, kPuntoEVirgola, "%3b77"},
  };
  for (const Caso& caso : kCasi) {
    for (const std::string urn : {kStato, kPresidente, kSenzaDuePunti, kPuntoEVirgola}) {
      const std::string atteso = urn == caso.guardia ? urn : urn + caso.aggiunta;
      EXPECT_EQ(Estesa(urn.c_str(), caso.passo, "77", caso.prima), atteso)
          << "step " << static_cast<int>(caso.passo) << " first " << caso.prima;
    }
  }
}

TEST(Urn, PartsAreAddedByTheirRules) {
  struct Caso {
    const char* urn;
    PassoUrn passo;
    const char* valore;
    const char* attesa;
  };
  constexpr Caso kCasi[] = {
      {"urn:x", PassoUrn::Anno, "1948", "urn:x:1948"},
      {"urn:x", PassoUrn::Anno, "1947", ""},
      {"urn:x", PassoUrn::Anno, "1865", ""},
      {"urn:x", PassoUrn::Anno, "195", "urn:x:195"},  // compared as text
      {"urn:x", PassoUrn::Mese, "8", "urn:x-08"},
      {"urn:x", PassoUrn::Mese, "0", "urn:x-00"},
      {"urn:x", PassoUrn::Mese, "12", "urn:x-12"},
      {"urn:x", PassoUrn::Giorno, "7", "urn:x-07"},
      {"urn:x", PassoUrn::Giorno, "31", "urn:x-31"},
      {"urn:x", PassoUrn::Numero, "241", "urn:x%3b241"},
      {"", PassoUrn::Anno, "1990", ""},
      {"", PassoUrn::Mese, "8", ""},
      {"", PassoUrn::Giorno, "7", ""},
      {"", PassoUrn::Numero, "241", ""},
  };
  for (const Caso& caso : kCasi) {
    for (const bool prima : {true, false}) {
      EXPECT_EQ(Estesa(caso.urn, caso.passo, caso.valore, prima), caso.attesa) << caso.valore;
    }
  }
}

TEST(Urn, ThePlaceHolderTakesTheNameOnce) {
  QString urn = "urn:nir:regione.xxx:legge.xxx:2000";
  CompletaUrn(urn, "lazio");
  EXPECT_EQ(urn.toStdString(), "urn:nir:regione.lazio:legge.xxx:2000");
  CompletaUrn(urn, "roma");
  EXPECT_EQ(urn.toStdString(), "urn:nir:regione.lazio:legge.roma:2000");
  EXPECT_EQ(NumeroErrore([&] { CompletaUrn(urn, "roma"); }), 5);
}

}  // namespace
}  // namespace torvi
