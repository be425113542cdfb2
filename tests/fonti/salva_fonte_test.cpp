#include "fonti/salva_fonte.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "fonti/anteprima.h"

namespace torvi {
namespace {

struct SalvataggioFonte : testing::Test {
  SalvataggioFonte() {
    stato.NuovaFonte = true;
    legge.indice = 2;
    legge.ComboFonte = "Legge costituzionale";
  }
  [[nodiscard]] QString Testi() const {
    QStringList testi;
    for (const RigaFonte& riga : stato.RigheFonte) testi += riga.TP + ' ' + riga.Testo;
    return testi.join('|');
  }

  StatoGlobale stato;
  DialoghiScritti dialoghi;
  ControlliFonte legge;
};

TEST_F(SalvataggioFonte, AppendsToTheRowsThatThereAre) {
  ControlliFonte senzaAtto = legge;
  senzaAtto.ComboFonte = "Contratti collettivi";
  ControlliFonte sentenza;
  sentenza.indice = 1;
  sentenza.ComboFonte = "Fonti giurisprudenziali (*GEC*)";
  sentenza.lstFonte = "C. Giust.";
  ControlliFonte senzaCorte = sentenza;
  senzaCorte.lstFonte.reset();
  for (int volta = 0; volta < 2; ++volta) {
    EXPECT_EQ(SalvaFonteInterna(stato, dialoghi, legge), EsitoFonte::Composta);
    EXPECT_EQ(SalvaFonteInterna(stato, dialoghi, senzaAtto), EsitoFonte::Tolta);
    EXPECT_EQ(SalvaFonteAltra(stato, dialoghi, sentenza), EsitoFonte::Mancata);
    EXPECT_EQ(SalvaFonteAltra(stato, dialoghi, senzaCorte), EsitoFonte::Tolta);
  }
  EXPECT_EQ(Testi(), "LICO l. cost.|0 |LICO l. cost.|0 ");
  EXPECT_EQ(RigheDopoAltra(stato).join('|'), "l. cost.|*0*|l. cost.|*0*");
}

TEST_F(SalvataggioFonte, HoldsNoMoreRowsThanSixteenBitsCount) {
  stato.RigheFonte.resize(32766);
  EXPECT_EQ(SalvaFonteInterna(stato, dialoghi, legge), EsitoFonte::Composta);
  EXPECT_EQ(NumeroErrore([&] { SalvaFonteInterna(stato, dialoghi, legge); }), 6);
  EXPECT_EQ(stato.RigheFonte.size(), 32767U);
}

// Not the empty row is cut but the last one, and rows behind the new end are not looked at.
TEST_F(SalvataggioFonte, CutsTheLastRowForEachLineThatWouldBeEmpty) {
  struct Caso {
    std::vector<const char*> righe;  // code and text; 'x' in front: marked for deletion
    const char* linee;
    const char* restano;
  };
  const Caso kCasi[] = {
      {{"LIO a", "NS b", "0 "}, "a|b*NS*|*0*", "LIO a|NS b|0 "},
      {{"xLIO a", "xNS b"}, "DEL--a|DEL--b*NS*", "LIO a|NS b"},
      {{"LIO ", "LIO b", "NS c"}, "b", "LIO |LIO b"},
      {{"LIO a", "AC ", "xGIO ", "NS d", "NS e"}, "a", "LIO a|AC |GIO "},
      {{"LIO a", "LIO "}, "a", "LIO a"},
      {{"LIO "}, "", ""},
  };
  for (const auto& [righe, linee, restano] : kCasi) {
    stato.RigheFonte.clear();
    for (QString riga : righe) {
      RigaFonte& nuova = stato.RigheFonte.emplace_back();
      nuova.Cancellata = riga.startsWith('x');
      if (nuova.Cancellata) riga.remove(0, 1);
      nuova.TP = riga.section(' ', 0, 0);
      nuova.Testo = riga.section(' ', 1);
    }
    EXPECT_EQ(RigheDopoAltra(stato).join('|'), linee);
    EXPECT_EQ(Testi(), restano);
  }
}

TEST_F(SalvataggioFonte, ShowsNoPreviewOfWhatWouldFail) {
  ControlliFonte trattato;
  trattato.ComboFonte = "Trattati, accordi, convenzioni internazionali (*NIT*)";
  trattato.txtLibero = "Conv. Alfa";
  const Anteprima anteprima = ComponiAnteprima(stato, SalvaFonteAltra, trattato);
  EXPECT_EQ(anteprima.testo + anteprima.mancanza, "");
  EXPECT_TRUE(stato.RigheFonte.empty());
}

}  // namespace
}  // namespace torvi
