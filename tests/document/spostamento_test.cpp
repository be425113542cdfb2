#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"
#include "document/comandi.h"

namespace torvi {
namespace {

TEST(Spostamento, TheEndsWrapAround) {
  ArchivioDiProva prova;
  prova.Apri("1");
  for (const char* atteso : {"2", "1", "2"}) {
    ComandoSposta(prova.documento, Verso::Avanti);
    EXPECT_EQ(prova.documento.campi.txtID, atteso);
    EXPECT_EQ(prova.stato.IDDocumentoScelto, atteso);
  }
  for (const char* atteso : {"1", "2"}) {
    ComandoSposta(prova.documento, Verso::Indietro);
    EXPECT_EQ(prova.documento.campi.txtID, atteso);
  }
}

TEST(Spostamento, ASearchLimitsIt) {
  ArchivioDiProva prova;
  for (int i = 0; i < 3; ++i) prova.Metti("TabDocumento", {{"IDRifBibl", 0}, {"LIN", "00"}});
  prova.stato.ModoRicerca = true;
  prova.stato.ListaRicerca = {1, 4};
  prova.Apri("1");
  for (const char* atteso : {"4", "1", "4"}) {
    ComandoSposta(prova.documento, Verso::Avanti);
    EXPECT_EQ(prova.documento.campi.txtID, atteso);
  }
  prova.stato.ListaRicerca.clear();
  EXPECT_EQ(NumeroErrore([&] { ComandoSposta(prova.documento, Verso::Indietro); }), 28);
  EXPECT_EQ(prova.documento.campi.txtID, "4") << "what is shown stays";
}

TEST(Spostamento, FromANumberThatIsNotThereItFails) {
  ArchivioDiProva prova;
  prova.Apri({});
  EXPECT_EQ(NumeroErrore([&] { ComandoSposta(prova.documento, Verso::Avanti); }), 3021);
  EXPECT_EQ(prova.documento.campi.txtID, "3");
}

}  // namespace
}  // namespace torvi
