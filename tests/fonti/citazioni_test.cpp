#include "comune/citazioni.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "cli/richiesta_fonte.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

// What the preview should show: the citation of an operator who says yes, or what is said first.
void ConfrontaAnteprima(const FormaFonte& forma, const StatoGlobale& stato,
                        const Citazione& citazione) {
  const QJsonValue risultato = citazione.attesa.value("risultato");
  const QJsonArray messaggi = citazione.attesa.value("messaggi").toArray();
  const bool domanda = citazione.richiesta.contains("risposte");
  const bool errore = risultato.isString();
  if (errore || (domanda && !risultato.isUndefined())) return;
  const Anteprima anteprima = ComponiAnteprima(
      stato, forma.salva, forma.leggi(citazione.richiesta.value("controlli").toObject()));
  if (citazione.richiesta.value("NuovaFonte").isUndefined()) {
    const bool composta = risultato.isUndefined();
    EXPECT_EQ(anteprima.testo,
              composta ? citazione.attesa.value("riga").toObject().value("Testo").toString() : "");
  }
  EXPECT_EQ(anteprima.mancanza, messaggi.at(0).toObject().value("testo").toString());
}

class Citazioni : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Citazioni, AreAsTheTableHasThem) {
  const auto& [nome, file] = GetParam();
  const CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  AggiungiAttiCitati(stato.DbArchivio);
  const FormaFonte* forma = TrovaForma(nome);
  ASSERT_NE(forma, nullptr);
  for (const Citazione& citazione : LeggiCitazioni(file)) {
    SCOPED_TRACE(std::string(file) + ":" + std::to_string(citazione.riga));
    EXPECT_EQ(Mostra(Ridotta(ComponiRichiesta(*forma, stato, citazione.richiesta))),
              Mostra(citazione.attesa));
    const std::vector<RigaFonte> righe = stato.RigheFonte;
    ConfrontaAnteprima(*forma, stato, citazione);
    EXPECT_EQ(stato.RigheFonte, righe);
  }
}

INSTANTIATE_TEST_SUITE_P(Tavole, Citazioni,
                         testing::Values(std::pair{"interna", "citazioni_interne.jsonl"},
                                         std::pair{"altra", "citazioni_altre.jsonl"}),
                         [](const auto& tavola) { return tavola.param.first; });

}  // namespace
}  // namespace torvi
