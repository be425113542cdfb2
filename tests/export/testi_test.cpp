#include "export/testi.h"

#include <gtest/gtest.h>

#include "export/documento_di_prova.h"

namespace torvi {
namespace {

constexpr qint64 kDocumento = 3;
const QString kIdRecord = "2001A0012";

class Testi : public testing::Test {
 protected:
  Scritto Responsabili() {
    return prova.Scrivi([](ContestoEsportazione& contesto) {
      ScriviResponsabili(contesto, kDocumento, kIdRecord);
    });
  }
  Scritto Testo(const CampoTesto& campo, const QString& td = {}, const QString& tAbs = {}) {
    return prova.Scrivi([&](ContestoEsportazione& contesto) {
      const TestiDocumento testi(contesto.legami.testi, kDocumento);
      trovato = ScriviTesto(contesto, testi, kIdRecord, campo, td, tAbs);
    });
  }
  DocumentiDiProva prova;
  bool trovato = false;
};

TEST_F(Testi, NamesStandInOneFieldUnderTheTagOfTheFirst) {
  Scritto scritto = Responsabili();
  EXPECT_EQ(scritto.campi, "");
  EXPECT_EQ(scritto.errori, "Manca autore/curatore: 2001A0012\r\n");
  prova.Responsabile(kDocumento, " Rossi ", "\tMario ");
  prova.Responsabile(kDocumento, "Bianchi", "Anna", false);
  prova.Responsabile(kDocumento, " Corte dei conti ", Campo());
  prova.Responsabile(kDocumento + 1, "Altri", Campo());
  scritto = Responsabili();
  EXPECT_EQ(scritto.campi, " 3Rossi+\tMario\\ Bianchi+Anna\\ Corte dei conti\n");
  EXPECT_EQ(scritto.errori, "");
}

TEST_F(Testi, ACuratorBeforeAnAuthorGivesTheCuratorsTag) {
  prova.Responsabile(kDocumento, "Corte dei conti", Campo(), false);
  prova.Responsabile(kDocumento, "Rossi", "Mario");
  EXPECT_EQ(Responsabili().campi, " 4Corte dei conti\\ Rossi+Mario\n");
}

TEST_F(Testi, ManyNamesBecomeSeveralFields) {
  for (int i = 0; i < 3; ++i) prova.Responsabile(kDocumento, QString(499, u'x'), Campo());
  const std::string nome(499, 'x');
  EXPECT_EQ(Responsabili().campi, " 3" + nome + "\\ \n 3" + nome + "\\ " + nome + "\n");
}

TEST_F(Testi, ANameThatDisagreesWithItsFlagEndsTheRun) {
  const qint64 id =
      prova.Riga("TabResponsabilita", {{"PrimoElemento", "Rossi"}, {"flagCollettivo", false}});
  prova.Riga("LegameDocResp",
             {{"IDDoc", kDocumento}, {"IDResponsabilita", id}, {"flagAutore", true}});
  EXPECT_EQ(Responsabili().errore, 94);
}

TEST_F(Testi, BackslashesGetBlanksAndPairsOfBlanksCloseUpOnce) {
  struct Caso {
    const char* testo;
    const char* campo;
  };
  constexpr Caso kCasi[] = {
      {"a\\b", "a \\ b"}, {"a \\ b", "a \\ b"}, {"a\\\\b", "a \\ \\ b"}, {"a   b", "a  b"},
      {"a    b", "a  b"}, {" a ", " a "},       {"a\\", "a \\ "},        {"a\r\nb\tc", "a\r\nb\tc"},
  };
  for (const Caso& caso : kCasi) {
    prova.stato.DbArchivio.Execute("delete * from LegameDocTesto");
    prova.Testo(kDocumento, "1", caso.testo);
    prova.Testo(kDocumento, "1", "secondo");
    EXPECT_EQ(Testo({"1", "riassunto", tag::kRiassunto}).campi,
              "13" + std::string(caso.campo) + "\n");
    EXPECT_TRUE(trovato);
  }
}

TEST_F(Testi, ATextOfMoreThan1000CharactersBecomesSeveralFields) {
  const QString mille = QString(QString(499, u'x') + u' ').repeated(2);
  prova.Testo(kDocumento, "7", mille + "y");
  EXPECT_EQ(Testo({"7", "in tema di", tag::kInTemaDi}).campi,
            "88" + mille.toStdString() + "\n88y\n");
}

TEST_F(Testi, ABracketInTheTranslationIsTold) {
  prova.Testo(kDocumento, "3", "[Il titolo]");
  prova.Testo(kDocumento, "0", "[Il titolo]");
  const Scritto scritto = Testo({"3", "traduzione", tag::kTraduzione});
  EXPECT_EQ(scritto.campi, "11[Il titolo]\n");
  EXPECT_EQ(scritto.errori, "Traduzione del titolo immessa dal compilatore: 2001A0012\r\n");
  EXPECT_EQ(Testo({"0", "titolo", tag::kTitolo}).errori, "");
}

TEST_F(Testi, AMissingTextIsToldWhereTheTypesCallForIt) {
  const char* const riassunto = "Manca riassunto e TABS <> 600, 700, 400: 2001A0012\r\n";
  struct Caso {
    const char* tipo;
    const char* td;
    const char* tAbs;
    const char* errori;
  };
  const Caso kCasi[] = {
      {"0", "01", "400", "Manca titolo: 2001A0012\r\n"},
      {"1", "02", "400", ""},
      {"1", "02", "500", riassunto},
      {"1", "02", "600", ""},
      {"1", "02", "700", ""},
      {"1", "02", "800", riassunto},
      {"1", "02", "", riassunto},
      {"2", "02", "600", "Manca sommario e TABS = 600: 2001A0012\r\n"},
      {"2", "02", "700", ""},
      {"3", "02", "700", ""},
      {"4", "02", "700", "Manca nota e TD <> 01: 2001A0012\r\n"},
      {"4", "01", "700", ""},
      {"6", "02", "700", ""},
      {"7", "02", "700", "Manca 'In tema di' e TABS = 700: 2001A0012\r\n"},
      {"7", "02", "600", ""},
      {"8", "02", "700", ""},
  };
  for (const Caso& caso : kCasi) {
    const Scritto scritto = Testo({caso.tipo, "titolo", tag::kTitolo}, caso.td, caso.tAbs);
    EXPECT_EQ(scritto.errori, caso.errori) << caso.tipo << ' ' << caso.td << ' ' << caso.tAbs;
    EXPECT_EQ(scritto.campi, "");
    EXPECT_FALSE(trovato);
  }
}

TEST_F(Testi, ANoteIsFoundByItsType) {
  bool esiste = true;
  const auto cerca = [&](ContestoEsportazione& contesto) {
    esiste = EsisteTesto(contesto, {contesto.legami.testi, kDocumento}, kDocumento, {u"4"});
  };
  prova.Testo(kDocumento, "6", "nota amb");
  prova.Testo(kDocumento + 1, "4", "di un altro");
  (void)prova.Scrivi(cerca);
  EXPECT_FALSE(esiste);
  prova.Testo(kDocumento, "4", "nota");
  (void)prova.Scrivi(cerca);
  EXPECT_TRUE(esiste);
}

}  // namespace
}  // namespace torvi
