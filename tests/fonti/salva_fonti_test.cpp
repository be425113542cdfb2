#include "fonti/salva_fonti.h"

#include <gtest/gtest.h>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "fonti/carica_fonti.h"
#include "fonti/query_fonte.h"

namespace torvi {
namespace {

using R = RigaFonte;

RigaFonte Fonte(const char* tp, const char* testo, const char* nome = "") {
  RigaFonte riga;
  riga.TP = tp;
  riga.Testo = testo;
  riga.FonteNorm = nome;
  return riga;
}

class SalvataggioFonti : public testing::Test {
 protected:
  // Rows 1 to 3 of every catalogue and small table; the third is the one that sources name.
  SalvataggioFonti() {
    for (const auto& [tabella, colonna] :
         {std::pair{"TabFonteInterna", "FonteNorm"}, std::pair{"TabFonteInt", "FonteInt"},
          std::pair{"TabFonteCom", "FonteCom"}, std::pair{"TabFonteCan", "FonteCan"},
          std::pair{"TabRegione", "CodRegione"}, std::pair{"TabProvincia", "CodProvincia"},
          std::pair{"TabCitta", "citta"}, std::pair{"TabMinistero", "MinisteroNorm"},
          std::pair{"TabAmministrazione", "AmministrazioneNorm"},
          std::pair{"TabAutorita", "AutoritaNorm"}, std::pair{"TabSezione", "sigla"},
          std::pair{"TabStato", "stato"}}) {
      for (const char* nome : {"a", "b", "c"}) {
        Aggiungi(stato.DbArchivio, tabella, {{colonna, nome}});
      }
    }
  }
  void Salva(const std::vector<RigaFonte>& righe, qint64 documento = 7, bool nuovo = false) {
    stato.RigheFonte = righe;
    SalvaFonti(stato, dialoghi, documento, nuovo);
  }
  [[nodiscard]] QString Query(const RigaFonte& riga) { return QueryFonte(stato, dialoghi, riga); }
  // The rows of a table, between semicolons.
  [[nodiscard]] std::string Righe(const char* tabella, const QString& colonne) {
    return RigheTesto(stato.DbArchivio, tabella, colonne.split(' ')).join(';').toStdString();
  }
  [[nodiscard]] std::string Legami() { return Righe("LegameDocFonte", "IDDoc IDFnt"); }
  [[nodiscard]] qsizetype QuanteFonti() const {
    return static_cast<qsizetype>(stato.DbArchivio.LeggiRighe("select * from tabFonte").size());
  }

  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
  UnitaDiScrittura unita{stato.DbArchivio};
  DialoghiScritti dialoghi;
};

// A row with every name filled in.
RigaFonte ConNomi(const char* tp) {
  RigaFonte riga = Fonte(tp, "t", "c");
  for (auto campo : {&RigaFonte::Regione, &RigaFonte::Citta, &RigaFonte::Provincia,
                     &RigaFonte::Ministero, &RigaFonte::Amministrazione, &RigaFonte::Autorita,
                     &RigaFonte::Sezione, &RigaFonte::Stato}) {
    riga.*campo = "c";
  }
  return riga;
}

TEST_F(SalvataggioFonti, AsksForEqualTextsAndForNamesByTheKind) {
  R riga = Fonte("FSI", "il \"detto\"", "sconosciuta");
  for (const auto& [campo, valore] : {std::pair{&R::Articolo, "1"},
                                      {&R::Comma, "2"},
                                      {&R::Lettera, "c"},
                                      {&R::Allegato, "4"},
                                      {&R::RipA, "bis"},
                                      {&R::RipC, "ter"},
                                      {&R::Numero, "7"},
                                      {&R::NumeroP, "8"},
                                      {&R::Giorno, "9"},
                                      {&R::Anno, "1942"},
                                      {&R::Mese, "luglio"},
                                      {&R::Altro, "\"x"}}) {
    riga.*campo = valore;
  }
  EXPECT_EQ(Query(riga).toStdString(),
            R"(select * from tabFonte where Testo = "il ""detto""" and TP = "FSI")"
            R"( and articolo = "1" and comma = "2" and lettera = "c" and allegato = "4")"
            R"( and ripa = "bis" and ripc = "ter" and numero = "7" and numerop = "8")"
            R"( and giorno = "9" and anno = "1942" and mese = "7" and altro = """x")");
  const char* const interni =
      " and IDFonte = 3 and IDRegione = 3 and IDCitta = 3 and IDProvincia = 3 and IDMinistero = 3"
      " and IDAmministrazione = 3 and IDAutorita = 3 and IDSezione = 3";
  Aggiungi(stato.DbArchivio, "TabFonteInt", {{"FonteInt", "x"}, {"Fonte", "t"}});
  for (const auto& [tp, coda] :
       {std::pair{"LIO", interni}, std::pair{"GIAL", interni}, std::pair{"AC", interni},
        std::pair{"ACX", interni}, std::pair{"NIT", " and IDFonte = 4"},
        std::pair{"NIA", " and IDFonte = 3"},
        std::pair{"GEI", " and IDFonte = 3 and IDSezione = 3"},
        std::pair{"NIC", " and IDFonte = 3"},
        std::pair{"GEC", " and IDFonte = 3 and IDSezione = 3"},
        std::pair{"FCC", " and IDFonte = 3 and IDRegione = 3 and IDCitta = 3"},
        std::pair{"FCG", " and IDFonte = 3 and IDRegione = 3 and IDCitta = 3"},
        std::pair{"NS", " and IDStato = 3"}, std::pair{"GS", " and IDStato = 3"},
        std::pair{"FCA", ""}, std::pair{"FSRG", ""}, std::pair{"0", ""}}) {
    const QString fissa =
        "select * from tabFonte where Testo = \"t\" and TP = \"%1\" and articolo = \"\" and comma "
        "= \"\" and lettera = \"\" and allegato = \"\" and ripa = \"\" and ripc = \"\" and numero "
        "= \"\" and numerop = \"\" and giorno = \"\" and anno = \"\" and mese = \"0\" and altro = "
        "\"\"";
    EXPECT_EQ(Query(ConNomi(tp)), fissa.arg(tp) + coda);
  }
}

// A treaty is sought by the citation from its name on, or by all of it.
TEST_F(SalvataggioFonti, FindsATreatyByTheEndOfItsText) {
  const qint64 coda = Aggiungi(stato.DbArchivio, "TabFonteInt", {{"Fonte", "Conv. Roma 1950"}});
  const qint64 tutto = Aggiungi(stato.DbArchivio, "TabFonteInt", {{"Fonte", "art. 6 Trattato"}});
  for (const auto& [testo, nome, atteso] :
       {std::tuple{"art. 6 Conv. Roma 1950", "CONV.", coda},
        std::tuple{"Conv. Roma 1950", "conv.", coda}, std::tuple{"art. 6 Trattato", "x", tutto},
        std::tuple{"art. 6 Trattato", "", tutto}}) {
    EXPECT_TRUE(
        Query(Fonte("NIT", testo, nome)).endsWith(QStringLiteral(" and IDFonte = %1").arg(atteso)))
        << testo;
  }
}

TEST_F(SalvataggioFonti, WritesARowAsItStands) {
  RigaFonte riga = ConNomi("LIO");
  riga.Mese = "luglio";
  riga.Anno = "1942";
  riga.Altro = "d\"a";
  riga.Decreto = true;
  riga.Marca = true;
  Salva({riga});
  const QString colonne =
      "tp testo mese anno altro fonte comma ordinanza decreto IDRegione IDSezione IDStato";
  EXPECT_EQ(Righe("tabFonte", colonne), "LIO|t|7|1942|d\"a|3||0|1|3|3|0");
  // An empty text is stored as such: Null would never be found again.
  EXPECT_FALSE(stato.DbArchivio.OpenRecordset("tabFonte").Fields("comma").Nullo());
  riga.IDFonte = 1;
  riga.Stato.clear();
  riga.Marca = false;
  EXPECT_EQ(CaricaFonti(stato, 7), QStringList("t"));
  EXPECT_TRUE(stato.RigheFonte.at(0) == riga);
}

// The key of the catalogue is compared with the number of the row itself.
TEST_F(SalvataggioFonti, FindsAgainOnlyWhatHasNoCatalogueOrItsNumber) {
  struct Caso {
    const char* tp;
    const char* nome;
    bool ritrovata;
  };
  // The first row of TabFonte has the number of the catalogue's first.
  for (const auto& [tp, nome, ritrovata] :
       {Caso{"LIO", "a", true}, Caso{"LIO", "b", false}, Caso{"NIC", "b", false},
        Caso{"FCG", "b", false}, Caso{"NS", "", true}, Caso{"GS", "", true}, Caso{"FCA", "", true},
        Caso{"FSRG", "", true}}) {
    SCOPED_TRACE(tp);
    RigaFonte riga = Fonte(tp, "l'\"art.\" 1", nome);
    riga.Stato = "B";
    const qsizetype prima = QuanteFonti();
    for (int volta = 0; volta < 2; ++volta) Salva({riga});
    EXPECT_EQ(QuanteFonti(), prima + (ritrovata ? 1 : 2));
    EXPECT_EQ(Legami(), "7|" + std::to_string(QuanteFonti()));
    riga.Altro = QLatin1String(nome) + "altro";
    Salva({riga});
    EXPECT_EQ(QuanteFonti(), prima + (ritrovata ? 2 : 3));
  }
}

TEST_F(SalvataggioFonti, FindsAgainAnyTextWithQuotes) {
  for (auto campo : {&R::Testo, &R::Articolo, &R::Comma, &R::Lettera, &R::Allegato, &R::RipA,
                     &R::RipC, &R::Numero, &R::NumeroP, &R::Giorno, &R::Anno, &R::Altro}) {
    RigaFonte riga = Fonte("FSI", "t");
    riga.*campo = "l'\"a\" [b]?#1";
    Salva({riga});
    const qsizetype prima = QuanteFonti();
    Salva({riga});
    EXPECT_EQ(QuanteFonti(), prima);
    static_cast<void>(CaricaFonti(stato, 7));
    EXPECT_EQ(stato.RigheFonte.at(0).*campo, riga.*campo);
  }
}

TEST_F(SalvataggioFonti, RewritesTheLinksOfAStoredDocumentAlone) {
  RigaFonte tolta = Fonte("FSI", "uno");
  tolta.Cancellata = true;
  Salva({Fonte("FSI", "uno"), Fonte("FSI", "due")});
  Salva({Fonte("FSI", "due")}, 8, true);
  EXPECT_EQ(Legami(), "7|1;7|2;8|2");
  Salva({});
  EXPECT_EQ(Legami(), "7|1;7|2;8|2");
  Salva({Fonte("FSI", "uno")}, 7, true);
  EXPECT_EQ(Legami(), "7|1;7|2;8|2;7|1");
  Salva({Fonte("FSI", "due"), tolta, Fonte("FSI", "due")});
  EXPECT_EQ(Legami(), "8|2;7|2;7|2");
  Salva({tolta});
  EXPECT_EQ(Legami(), "8|2");
  EXPECT_EQ(QuanteFonti(), 2);
}

struct NomeNuovo {
  const char* tp;
  QString RigaFonte::*campo;
  const char* tabella;
  const char* domanda;
  const char* etichetta;  // null without an extended form
  const char* colonne;    // name, extended form
  const char* chiave;     // in tabFonte
};

constexpr NomeNuovo kNomiNuovi[] = {
    {"LIO", &R::Citta, "TabCitta", "Città nuova: aggiungere?", nullptr, "citta", "IDCitta"},
    {"GIO", &R::Ministero, "TabMinistero", "Ministero nuovo: aggiungere?", "Ministero: l'\"z\"",
     "MinisteroNorm ministero", "IDMinistero"},
    {"AC", &R::Amministrazione, "TabAmministrazione", "Amministrazione nuova: aggiungere?",
     "Amministrazione: l'\"z\"", "AmministrazioneNorm amministrazione", "IDAmministrazione"},
    {"LIP", &R::Autorita, "TabAutorita", "Autorità nuova: aggiungere?", "Autorita: l'\"z\"",
     "AutoritaNorm autorita", "IDAutorita"},
    {"GEI", &R::Sezione, "TabSezione", "Sezione nuova: aggiungere?", "Sezione: l'\"z\"",
     "sigla sezione", "IDSezione"},
    {"GS", &R::Stato, "TabStato", "Stato nuovo: aggiungere?", nullptr, "stato", "IDStato"},
};

TEST_F(SalvataggioFonti, AddsANewNameOnceIfTheOperatorSaysYes) {
  for (const NomeNuovo& nome : kNomiNuovi) {
    SCOPED_TRACE(nome.tabella);
    dialoghi.AttendeDomanda(nome.domanda, "Attenzione", Pulsanti::SiNo, Risposta::Si);
    if (nome.etichetta != nullptr) dialoghi.AttendeTestoEsteso(nome.etichetta, "Zeta");
    RigaFonte riga = Fonte(nome.tp, "t", "c");
    riga.*nome.campo = "l'\"z\"";
    Salva({riga, riga});
    EXPECT_TRUE(Righe(nome.tabella, nome.colonne + QString(" nuovo"))
                    .ends_with(nome.etichetta != nullptr ? ";l'\"z\"|Zeta|1" : ";l'\"z\"|1"));
    EXPECT_TRUE(Righe("tabFonte", nome.chiave).ends_with("4"));
  }
}

TEST_F(SalvataggioFonti, AsksTwiceAboutARefusedNameAndSavesWithoutIt) {
  for (const NomeNuovo& nome : kNomiNuovi) {
    SCOPED_TRACE(nome.tabella);
    for (int volta = 0; volta < 2; ++volta) {
      dialoghi.AttendeDomanda(nome.domanda, "Attenzione", Pulsanti::SiNo, Risposta::No);
    }
    RigaFonte riga = Fonte(nome.tp, "t", "c");
    riga.*nome.campo = "l'\"z\"";
    const std::string prima = Righe(nome.tabella, nome.colonne);
    Salva({riga});
    EXPECT_EQ(Righe(nome.tabella, nome.colonne), prima);
    EXPECT_TRUE(
        Righe("tabFonte", QString("tp ") + nome.chiave).ends_with(std::string(nome.tp) + "|0"));
  }
}

TEST_F(SalvataggioFonti, StopsAtANameThatAFixedTableLacks) {
  RigaFonte regione = Fonte("LIR", "t", "c");
  regione.Regione = "ZZ";
  RigaFonte provincia = Fonte("LIP", "t", "c");
  provincia.Provincia = "ZZ";
  for (const RigaFonte& riga :
       {regione, provincia, Fonte("LIO", "t", "z"), Fonte("NIT", "t", "c"), Fonte("NIA", "t", "z"),
        Fonte("GEC", "t", "z"), Fonte("FCC", "t", "z")}) {
    SCOPED_TRACE(riga.TP.toStdString());
    stato.DbArchivio.Execute("delete * from LegameDocFonte");
    stato.DbArchivio.Execute("delete * from tabFonte");
    EXPECT_EQ(NumeroErrore([&] {
                Salva({Fonte("FSI", "prima"), riga, Fonte("FSI", "dopo")});
              }),
              3021);
    EXPECT_EQ(Righe("tabFonte", "testo"), "prima");
    EXPECT_EQ(Righe("LegameDocFonte", "IDDoc"), "7");
  }
}

}  // namespace
}  // namespace torvi
