#include "export/fonti_in_anticipo.h"

#include <gtest/gtest.h>

#include <QFile>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

class FontiInAnticipoTest : public testing::Test {
 protected:
  qint64 Fonte(const QString& testo) const {
    return Aggiungi(archivio, QStringLiteral("TabFonte"), {{"testo", testo}});
  }
  void Cita(const Campo& documento, qint64 fonte) const {
    Aggiungi(archivio, QStringLiteral("LegameDocFonte"), {{"IDDoc", documento}, {"IDFnt", fonte}});
  }
  static QStringList Testi(FontiInAnticipo& fonti, qint64 documento) {
    QStringList testi;
    for (const FonteLetta& fonte : fonti.Leggi(documento)) {
      testi += fonte[ColonnaFonte::testo].Testo();
    }
    return testi;
  }

  CartellaDiProva cartella;
  Database archivio = cartella.NuovaConsegna();
};

TEST_F(FontiInAnticipoTest, EachDocumentGetsItsOwnInStoredOrder) {
  {
    const UnitaDiScrittura unita(archivio);
    const qint64 a = Fonte("a");
    const qint64 b = Fonte("b");
    // Links of documents that are gone, one that came late, one of nobody, one to nothing.
    for (const auto& [documento, fonte] : {std::pair<Campo, qint64>{7, a},
                                           {2, b},
                                           {Campo(), a},
                                           {5, a},
                                           {2, a},
                                           {9, b},
                                           {2, 99},
                                           {2, b}}) {
      Cita(documento, fonte);
    }
  }
  FontiInAnticipo fonti(archivio);
  EXPECT_EQ(Testi(fonti, 1), QStringList());
  EXPECT_EQ(Testi(fonti, 2).join('|'), "b|a|b");
  EXPECT_EQ(Testi(fonti, 3), QStringList());
  EXPECT_EQ(Testi(fonti, 7).join('|'), "a");
  EXPECT_EQ(Testi(fonti, 9).join('|'), "b");
  EXPECT_EQ(Testi(fonti, 10), QStringList());
}

// Many more than are read ahead: a document is never torn, and who needs no more may go.
TEST_F(FontiInAnticipoTest, LongRunsComeWholeAndMayBeLeft) {
  constexpr int kDocumenti = 40;
  constexpr int kFonti = 70;
  {
    const UnitaDiScrittura unita(archivio);
    for (int i = 0; i < kDocumenti * kFonti; ++i) Cita(i / kFonti + 1, Fonte(QString::number(i)));
  }
  FontiInAnticipo fonti(archivio);
  for (int documento = 1; documento <= kDocumenti; ++documento) {
    const QStringList testi = Testi(fonti, documento);
    ASSERT_EQ(testi.size(), kFonti) << documento;
    EXPECT_EQ(testi.first().toInt(), (documento - 1) * kFonti);
    EXPECT_EQ(testi.last().toInt(), documento * kFonti - 1);
  }
  FontiInAnticipo lasciate(archivio);
  EXPECT_EQ(Testi(lasciate, 1).size(), kFonti);
  FontiInAnticipo intatte(archivio);
  intatte.Comincia();
}

TEST_F(FontiInAnticipoTest, AFailureReachesWhoAsks) {
  {
    const UnitaDiScrittura unita(archivio);
    FontiInAnticipo troppoPresto(archivio);
    EXPECT_EQ(NumeroErrore([&] { (void)troppoPresto.Leggi(1); }), 3251);
  }
  ASSERT_TRUE(QFile::remove(archivio.Name()));
  FontiInAnticipo fonti(archivio);
  for (int volta = 0; volta < 2; ++volta) {
    EXPECT_EQ(NumeroErrore([&] { (void)fonti.Leggi(1); }), 3024);
  }
}

}  // namespace
}  // namespace torvi
