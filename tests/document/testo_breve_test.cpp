#include "document/testo_breve.h"

#include <gtest/gtest.h>

#include "document/archivio_di_prova.h"

namespace torvi {
namespace {

struct Caso {
  const char* nome;
  QString StatoGlobale::*buffer;
  const char* inArchivio;
};
constexpr Caso kCasi[] = {{"Traduzione", &StatoGlobale::TestoTraduzione, "testo 3"},
                          {"NotaDoc", &StatoGlobale::TestoNotaDoc, "testo 5"},
                          {"Nota", &StatoGlobale::TestoNota, "testo 6"}};

TEST(TestoBreve, AnEmptyBufferShowsWhatTheArchiveStillHas) {
  for (const Caso& caso : kCasi) {
    ArchivioDiProva prova;
    StatoGlobale& stato = prova.stato;
    const TestoBreve& breve = TrovaTestoBreve(caso.nome);
    const bool notaDoc = caso.buffer == &StatoGlobale::TestoNotaDoc;
    const auto mostra = [&](qint64 numero = 1) { return CaricaTestoBreve(stato, breve, numero); };
    EXPECT_EQ(mostra(2), "");
    EsciTestoBreve(stato, breve, {});
    EXPECT_EQ(mostra(), caso.inArchivio) << "emptied, and not yet saved";
    EXPECT_FALSE(stato.NotaDocCancellata) << "an empty text deletes nothing";
    EsciTestoBreve(stato, breve, "altra");
    EXPECT_EQ(mostra(), "altra");
    EXPECT_EQ(stato.NotaDocCancellata, notaDoc);
    EsciTestoBreve(stato, breve, {});
    stato.NotaDocCancellata = true;
    EXPECT_EQ(mostra(), notaDoc ? "" : caso.inArchivio);
    stato.NotaDocCancellata = false;
    stato.DocumentoNuovo = true;
    EXPECT_EQ(mostra(), "");
  }
}

TEST(TestoBreve, ALinkWithoutItsTextShowsNone) {
  ArchivioDiProva prova;
  prova.Metti("LegameDocTesto", {{"IDDoc", 2}, {"IDTesto", 999}, {"Tipo", "6"}});
  EXPECT_EQ(CaricaTestoBreve(prova.stato, TrovaTestoBreve("Nota"), 2), "");
}

}  // namespace
}  // namespace torvi
