#include "shell/impostazioni.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

TEST(Impostazioni, AValueIsReadAsItStands) {
  struct Caso {
    const char* file;
    const char* valore;
  };
  const CartellaDiProva cartella;
  for (const auto& [file, valore] :
       {Caso{"IndirizzoCelex=https://x.it/a;b,c", "https://x.it/a;b,c"},
        Caso{"\xef\xbb\xbfIndirizzoCelex = città \r\n", "città"},
        Caso{";IndirizzoCelex=no\n[General]\nIndirizzoCelex=\"https://x.it;b\"\n[Altro]\n"
             "IndirizzoCelex=no\n",
             "https://x.it;b"},
        Caso{"IndirizzoCelex=primo\nIndirizzoCelex=C:\\\\dati\\leggi\n", "C:\\dati\\leggi"},
        Caso{"IndirizzoCelex=@Variant(\\0\\0\\0\\x7f)", "@Variant(\\0\\0\\0\\x7f)"},
        Caso{"IndirizzoCelex=\nAltra=x\n", "https://eur-lex.europa.eu"}}) {
    ScriviByte(cartella.Percorso() + "/torvieditor.INI", file);
    EXPECT_EQ(LeggiImpostazione(cartella.Percorso(), Impostazione::IndirizzoCelex), valore) << file;
  }
}

}  // namespace
}  // namespace torvi
