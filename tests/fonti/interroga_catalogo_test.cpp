#include "fonti/interroga_catalogo.h"

#include <gtest/gtest.h>

#include "archive/schema.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

TEST(IstruzioneCatalogo, JoinsWhatIsAskedFor) {
  struct Caso {
    DomandaCatalogo domanda;
    const char* condizioni;
  };
  const Caso kCasi[] = {
      {{.txtCatalogoAnno = "1999"}, " tabCatalogo.anno = 1999 "},
      {{.txtCatalogoNumero = "5"}, " tabCatalogo.numero = '5'"},
      {{.txtCatalogoGiorno = "5"}, " tabCatalogo.promulgazione like '05/*'"},
      {{.txtCatalogoGiorno = "05"}, " tabCatalogo.promulgazione like '05/*'"},
      {{.txtCatalogoGiorno = "25"}, " tabCatalogo.promulgazione like '25/*'"},
      {{.ComboCatalogoMese = "gennaio"}, " tabCatalogo.promulgazione like '*/01/*'"},
      {{.ComboCatalogoMese = "dicembre"}, " tabCatalogo.promulgazione like '*/12/*'"},
      {{.ComboCatalogoFonte = "l."}, " tabCatalogo.abbreviazione = 'l.'"},
      {{.ComboCatalogoFonte = "l. cost."}, " tabCatalogo.abbreviazione = 'l.cost.'"},
      {{.ComboCatalogoFonte = "d.p.r."}, " tabCatalogo.abbreviazione = 'd.p.r.'"},
      {{.ComboCatalogoFonte = "d.lg."}, " tabCatalogo.abbreviazione = 'd.lgs.'"},
      {{.ComboCatalogoFonte = "dir. p.c.m."}, " tabCatalogo.abbreviazione = 'dir.p.c.m.'"},
      {{.txtCatalogoParola = "l'acqua  and"}, " tabCatalogo.titolo = 'l''acqua  and'"},
      {{.txtCatalogoParola = "l'acqua e", .modo = ModoCampo::Tutte},
       " tabCatalogo.titolo like '*l''acqua*' AND  tabCatalogo.titolo like '*e*'"},
      {{.txtCatalogoParola = "a b c", .modo = ModoCampo::AlmenoUna},
       " tabCatalogo.titolo like '*a*' OR  tabCatalogo.titolo like '*b*' OR  tabCatalogo.titolo"
       " like '*c*'"},
      {{.txtCatalogoParola = "l'acqua e", .modo = ModoCampo::Sequenza},
       " tabCatalogo.titolo like '*l''acqua e*'"},
      {{.ComboCatalogoFonte = "l.",
        .txtCatalogoGiorno = "5",
        .ComboCatalogoMese = "marzo",
        .txtCatalogoAnno = "1999",
        .txtCatalogoNumero = "7",
        .txtCatalogoParola = "acque"},
       " tabCatalogo.anno = 1999 and tabCatalogo.numero = '7' and tabCatalogo.promulgazione like"
       " '05/*' and tabCatalogo.promulgazione like '*/03/*' and tabCatalogo.abbreviazione = 'l.'"
       " and tabCatalogo.titolo = 'acque'"},
  };
  for (const auto& [domanda, condizioni] : kCasi) {
    EXPECT_EQ(IstruzioneCatalogo(domanda).toStdString(), "select * from tabcatalogo where" +
                                                             std::string(condizioni) +
                                                             " order by Promulgazione, Numero");
  }
  for (const char* fonte : {"", "Provvedimento"}) {
    EXPECT_EQ(IstruzioneCatalogo({.ComboCatalogoFonte = fonte}), "");
  }
}

class CatalogoNorme : public testing::Test {
 protected:
  CatalogoNorme() {
    const QString percorso = cartella.Mdb("Catalogo Norme.MDB");
    CreaDatabase(percorso, SchemaCatalogo());
    const Database catalogo = OpenDatabase(percorso);
    for (const auto& [abbreviazione, promulgazione, anno, numero] :
         {std::tuple{"l.", "12/05/2001", 2001, Campo("9")},
          std::tuple{"l.cost.", "09/02/1948", 1948, Campo("1")},
          std::tuple{"d.lgs.", "05/10/2001", 2001, Campo("30")},
          std::tuple{"dir.p.c.m.", "05/12/2001", 2001, Campo()},
          std::tuple{"d.p.c.m.", "05/10/2001", 2001, Campo("4")},
          std::tuple{"r.d.", "28/11/1900", 1900, Campo("2")}}) {
      Aggiungi(catalogo, "tabCatalogo",
               {{"titolo", QStringLiteral("Titolo %1").arg(abbreviazione)},
                {"anno", anno},
                {"numero", numero},
                {"abbreviazione", abbreviazione},
                {"promulgazione", promulgazione},
                {"estremi", QStringLiteral("estremi %1").arg(abbreviazione)}});
    }
  }
  [[nodiscard]] QString Trovati(const DomandaCatalogo& domanda) const {
    return interrogazione.Cerca(IstruzioneCatalogo(domanda)).join('|');
  }

  CartellaDiProva cartella;
  InterrogazioneCatalogo interrogazione;
};

TEST_F(CatalogoNorme, IsSearchedByDayMonthYearAndWord) {
  interrogazione.Apri(cartella.Percorso());
  // By date and number as texts.
  EXPECT_EQ(Trovati({.txtCatalogoAnno = "2001"}),
            "3) estremi d.lgs. --- Titolo d.lgs.|5) estremi d.p.c.m. --- Titolo d.p.c.m.|"
            "4) estremi dir.p.c.m. --- Titolo dir.p.c.m.|1) estremi l. --- Titolo l.");
  const QString decreto = "3) estremi d.lgs. --- Titolo d.lgs.";
  EXPECT_EQ(Trovati({.ComboCatalogoFonte = "d.lg."}), decreto);
  EXPECT_EQ(Trovati({.txtCatalogoGiorno = "5", .txtCatalogoNumero = "30"}), decreto);
  EXPECT_EQ(Trovati({.ComboCatalogoMese = "ottobre", .txtCatalogoParola = "TITOLO D.LGS."}),
            decreto);
  EXPECT_EQ(Trovati({.txtCatalogoParola = "d.lgs. x", .modo = ModoCampo::AlmenoUna}), decreto);
  EXPECT_EQ(Trovati({.txtCatalogoParola = "olo d.lg", .modo = ModoCampo::Sequenza}), decreto);
  EXPECT_EQ(Trovati({.txtCatalogoParola = "d.lgs. x", .modo = ModoCampo::Tutte}), "");
  EXPECT_EQ(NumeroErrore([&] { static_cast<void>(Trovati({.txtCatalogoNumero = "l'8"})); }), 3075);
  EXPECT_EQ(interrogazione.Descrivi("2) x) "), "estremi l.cost.\r\nTitolo l.cost.");
}

TEST_F(CatalogoNorme, CarriesAnActToItsKindAndItsItem) {
  interrogazione.Apri(cartella.Percorso());
  const QString legge = "Atti statali aventi forza di legge";
  const QString governo = "Atti governativi e ministeriali";
  struct Caso {
    const char* linea;
    QString atteso;
  };
  const Caso kCasi[] = {
      {"1) x", legge + "|l.|12|maggio|2001|9"},
      {"2) x", "Legge costituzionale|-|9|febbraio|1948|1"},
      {"3) x", legge + "|d.lg.|5|ottobre|2001|30"},
      {"4) x", governo + "|dir. p.c.m.|5|dicembre|2001|"},
      {"5) x", governo + "|d.p.c.m.|5|ottobre|2001|4"},
      {"6) x", legge + "|r.d.|28|novembre|1900|2"},
  };
  for (const auto& [linea, atteso] : kCasi) {
    const AttoTrovato atto = interrogazione.Trasferisci(linea);
    const QStringList valori{atto.ComboFonte, atto.lstFonte.value_or("-"),
                             atto.txtGG,      atto.ComboMese,
                             atto.txtAA,      atto.txtN};
    EXPECT_EQ(valori.join('|'), atteso);
  }
}

TEST_F(CatalogoNorme, IsOpenOnlyFromOpeningToClosing) {
  const auto cerca = [&] { static_cast<void>(Trovati({.txtCatalogoAnno = "2001"})); };
  EXPECT_EQ(NumeroErrore(cerca), 91);
  interrogazione.Apri(cartella.Percorso());
  EXPECT_EQ(NumeroErrore(cerca), 0);
  // A catalogue that went away in between is not asked any more.
  EXPECT_EQ(NumeroErrore([&] { interrogazione.Apri(cartella.Percorso() + "/mdb"); }), 3024);
  EXPECT_EQ(NumeroErrore(cerca), 91);
}

// Days of a genuine catalogue may be dates, not texts.
TEST_F(CatalogoNorme, IsReadFromAJetFileWithDates) {
  const QString genuino = FileGenuino("catalogo norme data.mdb");
  QFile::remove(cartella.Mdb("Catalogo Norme.MDB"));
  ASSERT_TRUE(QFile::copy(genuino, cartella.Mdb("catalogo norme.mdb")));
  interrogazione.Apri(cartella.Percorso());
  EXPECT_EQ(Trovati({.txtCatalogoGiorno = "16", .ComboCatalogoMese = "giugno"}),
            "4) l. 16 giugno 1927, n. 1766 --- Riordinamento degli usi civici");
  const AttoTrovato atto = interrogazione.Trasferisci("4) x");
  EXPECT_EQ(atto.txtGG + atto.ComboMese + atto.txtAA, "16giugno1927");
}

}  // namespace
}  // namespace torvi
