#include "export/verifica_catalogo.h"

#include <gtest/gtest.h>

#include <QFile>

#include "export/catalogo_norme.h"
#include "export/fonti_di_prova.h"

namespace torvi {
namespace {

struct Data {
  Campo giorno;
  Campo mese;
  Campo anno;
};

class VerificaCatalogoTest : public testing::Test {
 protected:
  // 0 to 2, or the number of the run-time error.
  int Verifica(const char* fonteNorm, const Data& data, const Campo& numero) {
    const qint64 tipo = prova.Riga("TabFonteInterna", {{"FonteNorm", fonteNorm}});
    prova.TogliFonti();
    prova.Fonte({{"TP", "LIO"},
                 {"fonte", tipo},
                 {"giorno", data.giorno},
                 {"mese", data.mese},
                 {"anno", data.anno},
                 {"numero", numero}});
    return Esito();
  }
  int Esito() {
    auto esito = EsitoCatalogo::Trovato;
    const Scritto scritto = prova.Scrivi([&](ContestoEsportazione& contesto) {
      esito = VerificaCatalogo(contesto, prova.Fonti(contesto).front());
    });
    return scritto.errore != 0 ? scritto.errore : static_cast<int>(esito);
  }

  FontiDiProva prova;
};

const Data kData = {"7", "8", "1990"};

TEST_F(VerificaCatalogoTest, EachKindOfActIsSoughtUnderItsSpelling) {
  struct Caso {
    const char* fonteNorm;
    const char* abbreviazione;  // in the catalogue; null: not covered
  };
  constexpr Caso kCasi[] = {
      {"l. cost.", "l.cost."},
      {"d.l.", "d.l."},
      {"l.", "l."},
      {"d.p.r.", "d.p.r."},
      {"d.lg.", "d.lgs."},
      {"d.p.c.m.", "d.p.c.m."},
      {"r.d.", "r.d."},
      {"dir p.c.m.", "dir p.c.m."},
      {"dir. p.c.m.", nullptr},
      {"d.lgs.", nullptr},
      {"l.cost.", nullptr},
      {"d.m.", nullptr},
      {"L.", nullptr},
      {"", nullptr},
  };
  for (const Caso& caso : kCasi) {
    prova.NuovoCatalogo(caso.abbreviazione == nullptr ? caso.fonteNorm : caso.abbreviazione);
    const int trovato = caso.abbreviazione == nullptr ? 1 : 0;
    const int assente = caso.abbreviazione == nullptr ? 1 : 2;
    EXPECT_EQ(Verifica(caso.fonteNorm, kData, "241"), trovato) << caso.fonteNorm;
    EXPECT_EQ(Verifica(caso.fonteNorm, kData, "242"), assente) << caso.fonteNorm;
  }
}

TEST_F(VerificaCatalogoTest, DateAndNumberMustBeThoseOfTheAct) {
  struct Caso {
    Data data;
    Campo numero;
    int esito;
  };
  const Caso casi[] = {
      {{"7", "8", "1990"}, "241", 0},
      {{"07", "08", "1990"}, "241", 0},
      {{"7", "8", "1990"}, "", 0},
      {{"7", "8", "1990"}, Campo(), 0},
      {{"8", "7", "1990"}, "241", 2},
      {{"6", "8", "1990"}, "241", 2},
      {{"7", "8", "1991"}, "241", 2},
      {{"7", "8", "1990"}, "24", 2},
      {{"7", "8", "1990"}, "241'", 2},
      {{"7", "8", "1990"}, "241' or '1'='1", 2},
      {{"", "8", "1990"}, "241", 2},
      {{"7", "", "1990"}, "241", 2},
      {{"7", "8", ""}, "241", 2},
      {{Campo(), "8", "1990"}, "241", 2},
      {{"7", Campo(), "1990"}, "241", 2},
      {{"7", "8", Campo()}, "241", 2},
      {{"7", "0", "1990"}, "241", 2},
      {{"31", "2", "1990"}, "241", 2},
      {{"7", "13", "1990"}, "241", 2},
      {{"1\xC2\xB0", "8", "1990"}, "241", 2},
      {{"7", "8", "1990# or #1/1/1990"}, "241", 2},
  };
  prova.NuovoCatalogo("l.");
  for (const Caso& caso : casi) {
    EXPECT_EQ(Verifica("l.", caso.data, caso.numero), caso.esito)
        << caso.data.giorno.TestoOVuoto().toStdString() << "/"
        << caso.data.mese.TestoOVuoto().toStdString() << "/"
        << caso.data.anno.TestoOVuoto().toStdString() << " "
        << caso.numero.TestoOVuoto().toStdString();
  }
}

TEST_F(VerificaCatalogoTest, AnAbsentCatalogueIsNamedOnlyWhereItIsNeeded) {
  EXPECT_EQ(Verifica("d.m.", kData, "241"), 1);
  EXPECT_EQ(Verifica("l.", kData, "241"), 3024);
  EXPECT_EQ(Verifica("l.", {"", "", ""}, "241"), 3024);
  CatalogoNorme catalogo(prova.cartella.Percorso());
  EXPECT_TRUE(ErroreDi([&] { catalogo.Apri(); }).endsWith("/mdb/catalogo norme.mdb"));
}

TEST_F(VerificaCatalogoTest, AKindOfSourceThatIsGoneEndsTheRun) {
  prova.Fonte({{"TP", "LIO"}, {"fonte", 99}});
  EXPECT_EQ(Esito(), 3021);
}

TEST_F(VerificaCatalogoTest, GenuineCataloguesServeInBothForms) {
  for (const char* nome : {"catalogo norme.mdb", "catalogo norme data.mdb"}) {
    const QString genuino = FileGenuino(nome);
    const QString percorso = prova.cartella.Mdb("catalogo norme.mdb");
    QFile::remove(percorso);
    ASSERT_TRUE(QFile::copy(genuino, percorso));
    EXPECT_EQ(Verifica("l.", {"20", "3", "1865"}, "2248"), 0) << nome;
    EXPECT_EQ(Verifica("d.p.r.", {"15", "6", "1959"}, "393"), 0) << nome;
    EXPECT_EQ(Verifica("l. cost.", {"9", "2", "1948"}, "1"), 0) << nome;
    EXPECT_EQ(Verifica("d.p.r.", {"6", "15", "1959"}, "393"), 2) << nome;
    EXPECT_EQ(Verifica("l.", {"21", "3", "1865"}, "2248"), 2) << nome;
  }
}

}  // namespace
}  // namespace torvi
