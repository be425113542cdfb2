#include "report/stampa_rtf.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "comune/dialoghi_scritti.h"
#include "report/consegna_da_stampare.h"
#include "report/stampa_riferimenti.h"

namespace torvi {
namespace {

Campo Marcatore(const StatoGlobale& stato, const char* colonna) {
  return stato.DbArchivio.OpenRecordset(QStringLiteral("TabInfo")).Fields(colonna);
}

int Stampa(StatoGlobale& stato, bool completa = true, bool filtro = false) {
  DialoghiScritti dialoghi;
  const int errore = NumeroErrore([&] { StampaRTF(stato, dialoghi, completa, filtro); });
  EXPECT_EQ(dialoghi.Messaggi(), errore == 0 ? QStringList("Fine stampa") : QStringList());
  EXPECT_FALSE(dialoghi.InAttesa());
  return errore;
}

TEST(StampaRTF, TheCompletePrintComesOutToTheByte) {
  ConsegnaDaStampare prova;
  EXPECT_EQ(Stampa(prova.stato), 0);
  ConfrontaConDati(prova, "stampaRTF-C-A01.rtf");
  EXPECT_EQ(Marcatore(prova.stato, "StampaCompleta"), Campo("1"));
  EXPECT_TRUE(Marcatore(prova.stato, "StampaSoloTesto").Nullo());
}

TEST(StampaRTF, TheTextsComeOutToTheByte) {
  ConsegnaDaStampare prova;
  ScriviByte(prova.cartella.Dump("stampaRTF-T-A01.rtf"), "prima");
  DialoghiScritti dialoghi;
  dialoghi.AttendeDomanda(QStringLiteral("Stampa con filtro per traduzioni titolo?"),
                          QStringLiteral("Abstract in inglese"), Pulsanti::SiNo, Risposta::No);
  ComandoStampaSoloTesti(prova.stato, dialoghi);
  ConfrontaConDati(prova, "stampaRTF-T-A01.rtf");
  EXPECT_EQ(Marcatore(prova.stato, "StampaSoloTesto"), Campo("1"));
  EXPECT_TRUE(Marcatore(prova.stato, "StampaCompleta").Nullo());
}

// What the templates of the program must be for the prints to be whole: one group left open.
TEST(StampaRTF, TheTemplatesLeaveOneGroupOpen) {
  for (const char* nome : {"testata new.rtf", "testata prospetto.rtf"}) {
    const QByteArray testata = Byte(FileProgetto(QStringLiteral("risorse/") + QLatin1String(nome)));
    EXPECT_TRUE(testata.startsWith("{\\rtf1\\ansi\\ansicpg1252")) << nome;
    EXPECT_TRUE(testata.contains("Consegna xxx")) << nome;
    EXPECT_EQ(testata.count('{') - testata.count('}'), 1) << nome;
  }
}

// Once for each translation with its "]"; the numbers count on unseen.
TEST(StampaRTF, TheFilterTakesTheTranslationsOfTheEditor) {
  ConsegnaDaStampare prova;
  DialoghiScritti dialoghi;
  dialoghi.AttendeDomanda(QStringLiteral("Stampa con filtro per traduzioni titolo?"),
                          QStringLiteral("Abstract in inglese"), Pulsanti::SiNo, Risposta::Si);
  ComandoStampaSoloTesti(prova.stato, dialoghi);
  QStringList titoli;
  const QByteArray file = Byte(prova.cartella.Dump("stampaRTF-T-A01.rtf"));
  for (const QByteArray& riga : file.split('\n')) {
    if (riga.contains("Documento: ")) titoli += QString::fromLatin1(riga.mid(riga.indexOf("{(")));
  }
  EXPECT_EQ(titoli, QStringList({"{(\\i REC=1)\\par }\r", "{(\\i REC=2)\\par }\r",
                                 "{(\\i REC=5)\\par }\r", "{(\\i REC=5)\\par }\r"}));
  EXPECT_EQ(prova.stato.ContatoreDoc, 12 + 4);
  EXPECT_EQ(file.count("Prima]"), 2);
}

TEST(StampaRTF, ADeliveryWithoutDocumentsHasATitleOnly) {
  DocumentiDiProva prova;
  ScriviByte(prova.cartella.Percorso() + "/testata new.rtf", "{T");
  EXPECT_EQ(Stampa(prova.stato, false), 0);
  EXPECT_EQ(prova.Dump("stampaRTF-T-A01.rtf"),
            "{T\r\n"
            "\\pard\\plain \\qj\\nowidctlpar\\widctlpar\\tqr\\tx8505\\adjustright "
            "\\fs36\\lang1040\\cgrid \\pard \\fi-397\\li397\\nowidctlpar\\widctlpar\\adjustright "
            "{\\b\\scaps Stampa consegna A01 (solo testi)}{\\fs32\\par \\par }\r\n"
            "}\r\n");
}

// One row changes a document that prints well; what it then shows of its reference.
TEST(StampaRTF, ReferencesInTheirVariants) {
  struct Caso {
    Valori riferimento;
    Valori documento;
    const char* codici;  // of the first coded line behind the journal, then the second up to TD
    const char* esteso;  // behind the journal
  };
  const Caso kCasi[] = {
      {{},
       {},
       " DATA=15032001 FASC=000000003|PAG=0101-0120",
       ", 2001, fasc. 3 (15 marzo), pagg. 101-120"},
      {{{"Data", "00/03/1969"}},
       {},
       " DATA=00031969 FASC=000000003|PAG=0101-0120",
       ", fasc. 3 (marzo), pagg. 101-120"},
      {{{"Data", "00/00/1970"}},
       {},
       " DATA=00001970 FASC=000000003|PAG=0101-0120",
       ", 1970, fasc. 3, pagg. 101-120"},
      {{{"Data", "32/03/2001"}},
       {},
       " DATA=32032001 FASC=000000003|PAG=0101-0120",
       ", 2001, fasc. 3, pagg. 101-120"},
      {{{"Data", "01/13/2001"}},
       {},
       " DATA=01132001 FASC=000000003|PAG=0101-0120",
       ", 2001, fasc. 3, pagg. 101-120"},
      {{{"Data", "01/12/2001"}, {"Fascicolo", ""}},
       {},
       " DATA=01122001|PAG=0101-0120",
       ", 2001, pagg. 101-120"},
      {{{"Data", "00/00"}},
       {},
       " DATA=0000 FASC=000000003|PAG=0101-0120",
       ", fasc. 3, pagg. 101-120"},
      {{{"Fascicolo", "1234567890"}, {"Data", ""}},
       {},
       " FASC=1234567890|PAG=0101-0120",
       ", fasc. 1234567890, pagg. 101-120"},
      {{},
       {{"pagine", "*3-*5"}},
       " DATA=15032001 FASC=000000003|PAG=*3",
       ", 2001, fasc. 3 (15 marzo), pagg. *3-*5"},
      {{},
       {{"pagine", "15-15"}},
       " DATA=15032001 FASC=000000003|PAG=15",
       ", 2001, fasc. 3 (15 marzo), pagg. 15-15"},
      {{},
       {{"pagine", "XII"}},
       " DATA=15032001 FASC=000000003|PAG=000000XII",
       ", 2001, fasc. 3 (15 marzo), pag. XII"},
      {{{"Sezione", "II"}},
       {{"pagine", "7"}},
       " DATA=15032001 FASC=000000003| SEZ=II PAG=000000007",
       ", 2001, fasc. 3 (15 marzo), pag. 7"},
      {{{"Parte", "I"}},
       {{"pagine", ""}},
       " DATA=15032001 FASC=000000003| PT=I",
       ", 2001, fasc. 3 (15 marzo), pt. I"},
      {{}, {{"pagine", ""}}, " DATA=15032001 FASC=000000003|", ", 2001, fasc. 3 (15 marzo),"},
  };
  DocumentiDiProva prova;
  for (const Caso& caso : kCasi) {
    SCOPED_TRACE(std::string(caso.codici) + caso.esteso);
    const qint64 id = prova.Riferimento(caso.riferimento);
    DatiDocumento dati = {.IDRifBibl = static_cast<qint16>(id), .pagine = "101-120", .td = "05"};
    for (const auto& [nome, valore] : caso.documento) dati.pagine = valore.Testo();
    ContestoStampa contesto = {.stato = prova.stato, .completa = true};
    const QString inizio =
        QStringLiteral("\\pard \\fi-397\\li397\\nowidctlpar\\widctlpar\\adjustright {\\b ");
    const QString codici = QString::fromLatin1(caso.codici);
    EXPECT_EQ(
        RigaRiferimenti(contesto, QStringLiteral("2001A0012"), dati).toStdString(),
        QString(inizio + "Riferimenti bibl. 1: }{PER=RGI FR=3" + codici.section(u'|', 0, 0) +
                "\\par }" + inizio + "Riferimenti bibl. 2: }{" + codici.section(u'|', 1) +
                " TD=05 LIN= LO= LR= LA=\\par }" + inizio +
                "Riferimenti estesi: }{Rivista giuridica" + QLatin1String(caso.esteso) + "\\par }")
            .toStdString());
  }
}

// Texts and sources go in as stored; any other value keeps the groups as they are.
TEST(StampaRTF, NoValueButATextBreaksAGroup) {
  ConsegnaDaStampare prova;
  const auto graffe = [&] {
    EXPECT_EQ(Stampa(prova.stato), 0);
    return Byte(prova.cartella.Dump("stampaRTF-C-" + prova.stato.SiglaConsegna + ".rtf"))
        .toStdString();
  };
  const std::string prima = graffe();
  for (const char* istruzione : {"update TabInfo set Consegna = \"{0\"",
                                 "update TabResponsabilita set PrimoElemento = \"a\\b{\"",
                                 "update TabRivista set TitoloRivista = \"Riv}ista\"",
                                 "update [TabClasse2000-S] set descrizione = \"d}\"",
                                 "update TabClasse1999 set descrizione = \"vecchia{\""}) {
    prova.stato.DbArchivio.Execute(QLatin1String(istruzione));
  }
  const std::string dopo = graffe();
  for (const char* valore :
       {"Stampa consegna \\{0 (completa)", "{a\\\\b\\{", "{Riv\\}ista,", "|d\\}", "vecchia\\{)"}) {
    EXPECT_NE(dopo.find(valore), std::string::npos) << valore;
  }
  // Every brace that was not there before has its backslash.
  const auto aperte = [](const std::string& file) {
    return QByteArray::fromStdString(file)
        .replace("\\\\", "")
        .replace("\\{", "")
        .replace("\\}", "");
  };
  EXPECT_EQ(aperte(dopo).count('{'), aperte(prima).count('{'));
  EXPECT_EQ(aperte(dopo).count('}'), aperte(prima).count('}'));
}

// What a run-time error leaves: its number, no end of the file, no message.
TEST(StampaRTF, ARunThatFailsIsNotShownAsWhole) {
  using Guasto = void (*)(ConsegnaDaStampare&);
  struct Caso {
    const char* nome;
    int errore;
    Guasto guasto;
  };
  static constexpr Caso kCasi[] = {
      {"reference 0", 3021,
       [](ConsegnaDaStampare& p) {
         p.Documento({{"IDRifBibl", 0}});
       }},
      {"reference past 16 bits", 6,
       [](ConsegnaDaStampare& p) {
         p.Documento({{"IDRifBibl", 40000}});
       }},
      {"no such bibliography", 3021,
       [](ConsegnaDaStampare& p) {
         p.Documento({{"Bib", "7"}});
       }},
      {"text without content", 94,
       [](ConsegnaDaStampare& p) {
         p.stato.DbArchivio.Execute(QStringLiteral("update TabTesto set testo = null"));
       }},
      {"person without name", 94,
       [](ConsegnaDaStampare& p) {
         p.stato.DbArchivio.Execute(
             QStringLiteral("update TabResponsabilita set flagCollettivo = False"));
       }},
      {"code without parent", 3021,
       [](ConsegnaDaStampare& p) {
         p.stato.DbArchivio.Execute(QStringLiteral("update TabClasse1999 set ID_PADRE = null"));
       }},
      {"descriptor without row", 3021,
       [](ConsegnaDaStampare& p) {
         p.stato.DbArchivio.Execute(QStringLiteral("delete * from [TabClasse2000-D]"));
       }},
      {"number past 16 bits", 6,
       [](ConsegnaDaStampare& p) {
         p.stato.DbArchivio.Execute(QStringLiteral("update TabInfo set NumInizio = '32765'"));
       }},
      {"no template", 53,
       [](ConsegnaDaStampare& p) {
         ASSERT_TRUE(QFile::remove(p.cartella.Percorso() + "/Testata New.rtf"));
       }},
  };
  for (const Caso& caso : kCasi) {
    SCOPED_TRACE(caso.nome);
    ConsegnaDaStampare prova;
    caso.guasto(prova);
    EXPECT_EQ(Stampa(prova.stato), caso.errore);
    EXPECT_FALSE(prova.Dump("stampaRTF-C-A01.rtf").ends_with("\r\n}\r\n"));
  }
  ConsegnaDaStampare prova;
  ASSERT_TRUE(QDir(prova.cartella.Percorso() + "/dump").removeRecursively());
  EXPECT_EQ(Stampa(prova.stato), 76);
  EXPECT_EQ(Marcatore(prova.stato, "StampaCompleta"), Campo("1"));
}

}  // namespace
}  // namespace torvi
