#include "export/legami_in_ordine.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

// Links as an archive has them after years: those of deleted documents, some that came late, one
// that belongs to nobody.
Database ArchivioConLegami(const CartellaDiProva& cartella) {
  const Database archivio = cartella.NuovaConsegna();
  const std::initializer_list<std::pair<Campo, int>> legami = {
      {7, 70}, {2, 20}, {Campo(), 1}, {5, 50}, {2, 21}, {9, 90}, {2, 22}};
  for (const auto& [documento, fonte] : legami) {
    Aggiungi(archivio, "LegameDocFonte", {{"IDDoc", documento}, {"IDFnt", fonte}});
  }
  return archivio;
}

QList<qint64> Fonti(LegamiInOrdine& legami, qint64 idDoc) {
  QList<qint64> fonti;
  for (legami.Cerca(idDoc); !legami.Finiti(); legami.Avanti()) {
    fonti += legami.Riga().Fields("IDFnt").Intero();
  }
  return fonti;
}

TEST(LegamiInOrdine, EachDocumentGetsItsOwnInStoredOrder) {
  const CartellaDiProva cartella;
  const Database archivio = ArchivioConLegami(cartella);
  LegamiInOrdine legami(archivio, "select * from legameDocFonte order by legameDocFonte.IDDoc");
  // Back to one before, and the same once more.
  const std::initializer_list<std::pair<qint64, QList<qint64>>> casi = {
      {1, {}},   {2, {20, 21, 22}}, {3, {}},           {7, {70}},
      {9, {90}}, {10, {}},          {2, {20, 21, 22}}, {2, {20, 21, 22}}};
  for (const auto& [documento, fonti] : casi) EXPECT_EQ(Fonti(legami, documento), fonti);
}

TEST(LegamiInOrdine, ADocumentLeftHalfReadDoesNotSpillIntoTheNext) {
  const CartellaDiProva cartella;
  const Database archivio = ArchivioConLegami(cartella);
  LegamiInOrdine legami(archivio, "select * from legameDocFonte order by legameDocFonte.IDDoc");
  legami.Cerca(2);
  EXPECT_EQ(legami.Riga().Fields("IDFnt").Intero(), 20);
  EXPECT_EQ(Fonti(legami, 5), QList<qint64>{50});
}

TEST(LegamiInOrdine, AnEmptyTableHasNothingForAnyone) {
  const CartellaDiProva cartella;
  const Database archivio = cartella.NuovaConsegna();
  LegamiInOrdine legami(archivio, "select * from legameDocFonte order by legameDocFonte.IDDoc");
  EXPECT_TRUE(Fonti(legami, 1).isEmpty());
}

}  // namespace
}  // namespace torvi
