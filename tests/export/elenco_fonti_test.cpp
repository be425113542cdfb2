#include "export/elenco_fonti.h"

#include <gtest/gtest.h>

#include "export/fonti_di_prova.h"

namespace torvi {
namespace {

TEST(ElencoFonti, TheMarkedKindsBearTheirCode) {
  FontiDiProva prova;
  std::string atteso = "10";
  const auto cita = [&](const char* tp, const char* testo, const std::string& elemento) {
    prova.Fonte({{"TP", tp}, {"testo", testo}, {"numero", "1"}});
    atteso += (atteso == "10" ? "" : "\\") + elemento;
  };
  for (const std::string tp :
       {"NIC", "NIT", "NIA", "GEC", "GEI", "NS", "GS", "FCA", "FSRG", "FSA"}) {
    cita(tp.c_str(), "T", "T*" + tp + "*");
  }
  for (const char* tp : {"NSX", "GSX", "GIA", "GICO", "LIC", "AC", "LIF", "nic", ""}) {
    cita(tp, "T", "T");
  }
  cita("NIC", "T*NIC*", "T*NIC*");
  cita("FCA", "a*b", "a*b");
  cita("NS", "", "*NS*");
  const Scritto esito = prova.Elenco();
  EXPECT_EQ(esito.campi, atteso + "\n");
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.errFonte, "");
}

TEST(ElencoFonti, SourcesStandInTheOrderOfTheirLinks) {
  FontiDiProva prova;
  const qint64 a = prova.Fonte({{"TP", "GIO"}, {"testo", "a"}, {"numero", ""}});
  const qint64 b = prova.Fonte({{"TP", "GIO"}, {"testo", "b"}, {"numero", ""}});
  prova.TogliFonti();
  for (const qint64 fonte : {b, a}) prova.Riga("LegameDocFonte", {{"IDDoc", 3}, {"IDFnt", fonte}});
  prova.Riga("LegameDocFonte", {{"IDDoc", 4}, {"IDFnt", a}});
  EXPECT_EQ(prova.Elenco().campi, "10b\\a\n");
}

TEST(ElencoFonti, ALongListBecomesSeveralFields) {
  FontiDiProva prova;
  const QString parola(499, u'x');
  const QString testo = parola + " " + parola + " ";
  prova.Fonte({{"TP", "GIO"}, {"testo", testo}, {"numero", ""}});
  EXPECT_EQ(prova.Elenco().campi.size(), 2 + 1000 + 1);
  prova.Fonte({{"TP", "GIO"}, {"testo", "b"}, {"numero", ""}});
  EXPECT_EQ(prova.Elenco().campi, "10" + testo.toStdString() + "\n10\\b\n");
}

TEST(ElencoFonti, ADocumentWithoutSourcesIsToldOnlyWhereTheyAreRequired) {
  FontiDiProva prova;
  Scritto esito = prova.Elenco();
  EXPECT_EQ(esito.campi + esito.errori + esito.errFonte, "");
  prova.stato.ControlloFonti = true;
  esito = prova.Elenco();
  EXPECT_EQ(esito.campi + esito.errFonte, "");
  EXPECT_EQ(esito.errori, "Manca fonte: 2001A0012\r\n");
}

TEST(ElencoFonti, EachCheckRunsOnItsPositions) {
  struct Caso {
    const char* tp;
    Campo fonte;
    Campo regione;
    const char* numero;
    const char* prima;
    const char* seguente;
  };
  constexpr auto kTar = "Fonte TAR senza regione: ";
  constexpr auto kLimite = "Fonte GICO con numero > 1000: ";
  constexpr auto kManca = "Fonte GICO/GICA senza numero: ";
  constexpr auto kErrata = "Fonte errata: ";
  const Caso casi[] = {
      {"GIA", 117, 0, "1", kTar, kTar},
      {"GIA", 117, 3, "1", "", ""},
      {"GIA", 117, Campo(), "1", "", ""},
      {"GIA", 116, 0, "1", "", ""},
      {"GIA", Campo(), 0, "1", "", ""},
      {"GIO", 117, 0, "1", "", ""},
      {"GICO", 1, 0, "1001", "", kLimite},
      {"GICO", 1, 0, "2000 bis", "", kLimite},
      {"GICO", 1, 0, "1000", "", ""},
      {"GICO", 1, 0, "n. 1001", "", ""},
      {"GICO", 1, 0, "1000.5", "", kLimite},
      {"GICA", 1, 0, "1001", "", ""},
      {"GICO", 1, 0, "", "", kManca},
      {"GICA", 1, 0, "", "", kManca},
      {"GIO", 1, 0, "", "", ""},
      {"LIO", 1, 0, "241", "", ""},
      {"LIO", 1, 0, "242", kErrata, kErrata},
      {"LICO", 1, 0, "242", kErrata, kErrata},
      {"LIOA", 1, 0, "242", kErrata, kErrata},
      {"LIR", 1, 0, "242", "", ""},
  };
  FontiDiProva prova;
  prova.Riga("TabFonteInterna", {{"FonteNorm", "l."}});
  prova.NuovoCatalogo("l.");
  const auto messaggio = [](const char* testo) {
    return *testo == '\0' ? std::string() : std::string(testo) + "t\xE0 (2001A0012)\r\n";
  };
  for (const Caso& caso : casi) {
    const auto aggiungi = [&] {
      prova.Fonte({{"TP", caso.tp},
                   {"testo", "tà"},
                   {"fonte", caso.fonte},
                   {"IDRegione", caso.regione},
                   {"numero", caso.numero},
                   {"giorno", "7"},
                   {"mese", "8"},
                   {"anno", "1990"}});
    };
    prova.TogliFonti();
    aggiungi();
    EXPECT_EQ(prova.Elenco().errFonte, messaggio(caso.prima)) << caso.tp << caso.numero;
    prova.TogliFonti();
    prova.Fonte({{"TP", "GICO"}, {"testo", "prima"}});
    aggiungi();
    EXPECT_EQ(prova.Elenco().errFonte, messaggio(caso.seguente)) << caso.tp << caso.numero;
  }
}

TEST(ElencoFonti, EachActOfARunIsJudgedByItself) {
  struct Caso {
    int fonte;
    const char* giorno;
    const char* anno;
    const char* numero;
    bool errata;
  };
  constexpr Caso kCasi[] = {
      {1, "7", "1990", "241", false}, {1, "7", "1990", "242", true}, {1, "8", "1990", "241", true},
      {1, "7", "1991", "241", true},  {2, "7", "1990", "241", true}, {1, "7", "1990", "", false},
      {1, "7", "1990", "241", false}, {1, "7", "1990", "242", true},
  };
  FontiDiProva prova;
  prova.Riga("TabFonteInterna", {{"FonteNorm", "l."}});
  prova.Riga("TabFonteInterna", {{"FonteNorm", "d.l."}});
  prova.NuovoCatalogo("l.");
  std::string attesi;
  for (const Caso& caso : kCasi) {
    const QString testo = QString::number(&caso - kCasi);
    prova.Fonte({{"TP", "LIO"},
                 {"testo", testo},
                 {"fonte", caso.fonte},
                 {"giorno", caso.giorno},
                 {"mese", "8"},
                 {"anno", caso.anno},
                 {"numero", caso.numero}});
    if (caso.errata) attesi += "Fonte errata: " + testo.toStdString() + " (2001A0012)\r\n";
  }
  EXPECT_EQ(prova.Elenco().errFonte, attesi);
}

TEST(ElencoFonti, ANullNumberEndsTheRunOnALaterSourceOnly) {
  FontiDiProva prova;
  prova.Fonte({{"TP", "GICO"}, {"testo", "prima"}});
  EXPECT_EQ(prova.Elenco().errore, 0);
  prova.Fonte({{"TP", "GIA"}, {"testo", "seconda"}, {"fonte", 117}, {"IDRegione", 0}});
  const Scritto esito = prova.Elenco();
  EXPECT_EQ(esito.errore, 94);
  EXPECT_EQ(esito.campi, "");
  EXPECT_EQ(esito.errFonte, "Fonte TAR senza regione: seconda (2001A0012)\r\n");
}

}  // namespace
}  // namespace torvi
