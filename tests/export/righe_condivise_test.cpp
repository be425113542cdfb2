#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "export/nomi_responsabili.h"
#include "export/tabelle_di_codici.h"

namespace torvi {
namespace {

constexpr int kOltreLaMemoria = 4100;  // rows; fewer are kept

class RigheCondiviseTest : public testing::Test {
 protected:
  CartellaDiProva cartella;
  Database archivio = cartella.NuovaConsegna();
  UnitaDiScrittura unita{archivio};  // one write for all rows of a test
};

TEST_F(RigheCondiviseTest, NamesAreMadeAsTheyAreAskedFor) {
  const auto responsabile = [&](const Campo& primo, const Campo& secondo, bool collettivo) {
    return Aggiungi(
        archivio, "TabResponsabilita",
        {{"PrimoElemento", primo}, {"SecondoElemento", secondo}, {"flagCollettivo", collettivo}});
  };
  const qint64 rossi = responsabile(" Rossi ", "Mario", false);
  const qint64 incompleto = responsabile("Verdi", Campo(), false);
  const qint64 ente = responsabile("C.N.R.", Campo(), true);
  for (int i = 0; i < kOltreLaMemoria; ++i) responsabile("Bianchi", i, false);
  const qint64 ultimo = responsabile("Neri", "Ugo", false);
  NomiResponsabili nomi(archivio, QLatin1StringView("+"));
  // The row that is not whole must not stop those that have nothing to do with it.
  EXPECT_EQ(*nomi.Cerca(rossi), "Rossi+Mario");
  EXPECT_EQ(*nomi.Cerca(ente), "C.N.R.");
  EXPECT_EQ(*nomi.Cerca(ultimo), "Neri+Ugo");
  EXPECT_EQ(*nomi.Cerca(rossi), "Rossi+Mario");
  for (int volta = 0; volta < 2; ++volta) {
    EXPECT_EQ(NumeroErrore([&] { (void)nomi.Cerca(incompleto); }), 94);
  }
  EXPECT_EQ(nomi.Cerca(ultimo + 1), nullptr);
  EXPECT_EQ(nomi.Cerca(Campo()), nullptr);
}

TEST_F(RigheCondiviseTest, CodesAreFoundAsTheArchiveComparesThem) {
  Aggiungi(archivio, "TabClasse2000-S", {{"CodiceS", "ZÀ001"}, {"sigla", "Z.1"}});
  TabelleDiCodici codici(archivio);
  const auto sigla = [&](const Campo& codice) {
    const RigaCodice& riga = codici.Cerca(TavolaCodici::CodiceSistematico, codice);
    return riga.NoMatch() ? "-" : riga.Fields("sigla").Testo();
  };
  for (const char* grafia : {"ZÀ001", "zà001", "ZÀ001  ", "zà001"}) EXPECT_EQ(sigla(grafia), "Z.1");
  for (const Campo& altro : {Campo("ZA001"), Campo("ZÀ00"), Campo("")})
    EXPECT_EQ(sigla(altro), "-");
  const RigaCodice& nessuna = codici.Cerca(TavolaCodici::CodiceSistematico, Campo());
  EXPECT_TRUE(nessuna.NoMatch());
  EXPECT_EQ(NumeroErrore([&] { (void)nessuna.Fields("sigla"); }), 3021);
}

TEST_F(RigheCondiviseTest, ARowBeyondThoseThatAreKeptIsFoundToo) {
  qint64 ultima = 0;
  for (int i = 0; i < kOltreLaMemoria; ++i) {
    ultima = Aggiungi(archivio, "TabCitta", {{"citta", QStringLiteral("Borgo %1").arg(i)}});
  }
  TabelleDiCodici codici(archivio);
  for (const qint64 chiave : {ultima, ultima - kOltreLaMemoria + 1, ultima}) {
    const int numero = static_cast<int>(chiave - ultima) + kOltreLaMemoria - 1;
    EXPECT_EQ(codici.Cerca(TavolaCodici::Citta, chiave).Fields("citta").Testo(),
              QStringLiteral("Borgo %1").arg(numero));
  }
}

}  // namespace
}  // namespace torvi
