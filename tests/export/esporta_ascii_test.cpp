#include "export/esporta_ascii.h"

#include <gtest/gtest.h>

#include <QDir>
#include <sstream>

#include "comune/dialoghi_scritti.h"
#include "export/documento_di_prova.h"

namespace torvi {
namespace {

void Domande(DialoghiScritti& dialoghi, Risposta fonti, Risposta accoda) {
  dialoghi.AttendeDomanda("Controllo presenza fonti?", "Esportazione per ISIS", Pulsanti::SiNo,
                          fonti);
  dialoghi.AttendeDomanda("Accodare risultato dell'esportazione?", "Esportazione", Pulsanti::SiNo,
                          accoda);
}

// The run-time error that a run from the menu ends with; where it ends well, it must say so.
QString Esporta(StatoGlobale& stato, const FlagEsportazione& flag, Risposta fonti = Risposta::No) {
  DialoghiScritti dialoghi;
  Domande(dialoghi, fonti, Risposta::No);
  const QString errore = ErroreDi([&] { EsportaAscii(stato, dialoghi, flag); });
  EXPECT_EQ(dialoghi.Messaggi(),
            errore.isEmpty() ? QStringList("Fine esportazione della consegna A01") : QStringList());
  return errore;
}

void EsportaDaMenu(StatoGlobale& stato, const FlagEsportazione& flag,
                   Risposta fonti = Risposta::No) {
  EXPECT_EQ(Esporta(stato, flag, fonti), "");
}

TEST(EsportaAscii, TheExampleComesOutToTheByteInThreeFlavours) {
  const std::string prime =
      " 12001A0012\r\n"
      " 2AP=2001 NP=A0012\r\n"
      " 5PER=RGI FR=3 ANN=000047 DATA=15032001 FASC=000000003\r\n"
      "14PT=I PAG=0101-0120 TD=02 TABS=600 BIB=1 LIN=00\r\n"
      "21Rivista giuridica, \x06"
      "D2001\x06"
      "d, fasc\x06. 3 (15 marzo), pt\x06. I, pagg\x06. "
      "101-120, (con note)\r\n"
      " 3Rossi+Mario\\ Bianchi+Anna\r\n"
      " 6Il contratto di trasporto\r\n"
      "20Nota a Cass. 12 marzo 2000\r\n"
      " 9I. Premessa \\ II. Conclusioni\r\n"
      "10l. 7 agosto 1990 n. 241 art. 3\r\n";
  const std::string etichettate =
      "22^tLIO^fl.^x ^y1990^m8^d7^n241^a3^j ^c ^k ^l ^g ^s ^o ^e ^r ^p ^i ^z "
      "^uurn:nir:stato:legge:1990-08-07%3b241\r\n";
  const std::string codici = "23AM001;00123\r\n";
  const std::string storico = "24AMM|Atti amministrativi; Procedimento\r\n";
  const std::string cassazione = "25AMM Atti amministrativi; Procedimento\r\n";
  struct Caso {
    FlagEsportazione flag;
    const char* file;
    std::string atteso;
  };
  const Caso kCasi[] = {
      {kEsportaIsis, "lexxdump isis.A01",
       "2001A0012\r\n14\r\n" + prime + etichettate + codici + storico + cassazione},
      {kEsportaCassazione, "lexxdump cassazione.A01", "2001A0012\r\n11\r\n" + prime + cassazione},
      {kEsportaStorico, "lexxdump storico.A01", "2001A0012\r\n12\r\n" + prime + codici + storico},
  };
  DocumentiDiProva prova;
  prova.Esempio();
  for (const Caso& caso : kCasi) {
    SCOPED_TRACE(caso.file);
    EsportaDaMenu(prova.StatoScritto(), caso.flag);
    EXPECT_EQ(prova.Dump(caso.file), caso.atteso);
    for (const char* errori : {"errori.A01", "errClasse.A01", "errFonte.A01"}) {
      EXPECT_EQ(prova.Dump(errori), "\r\n") << errori;
    }
  }
}

// The lines of a file of dump/ that begin with the tag.
std::string Campi(const DocumentiDiProva& prova, const char* file, const std::string& tag) {
  std::istringstream testo(prova.Dump(file));
  std::string campi;
  for (std::string riga; std::getline(testo, riga);) {
    if (riga.starts_with(tag)) campi += riga.substr(0, riga.size() - 1) + "\n";
  }
  return campi;
}

TEST(EsportaAscii, ADocumentWithoutDateKeepsTheSchemeOfTheOneBefore) {
  DocumentiDiProva prova;
  const qint64 nuovo = prova.Riferimento();
  const qint64 vecchio = prova.Riferimento({{"Data", "15/03/1999"}});
  const qint64 senza = prova.Riferimento({{"Data", Campo()}});
  for (const qint64 riferimento : {senza, nuovo, senza, vecchio, senza}) {
    prova.Documento({{"IDRifBibl", riferimento}});
  }
  EsportaDaMenu(prova.StatoScritto(), kEsportaStorico);
  EXPECT_EQ(Campi(prova, "lexxdump storico.A01", "23"), "23\n23\n");
  prova.stato.Dopo2000 = true;
  EsportaDaMenu(prova.StatoScritto(), kEsportaStorico);
  EXPECT_EQ(Campi(prova, "lexxdump storico.A01", "23"), "23\n23\n23\n");
}

TEST(EsportaAscii, DocumentsAreNumberedInTheirOrderAtEveryRun) {
  DocumentiDiProva prova({.inizio = "9998x"});
  prova.Riferimento();
  for (const int idDoc : {7, 30, 5}) prova.Documento({{"IDDocumento", idDoc}});
  for (int giro = 0; giro < 2; ++giro) {
    EsportaDaMenu(prova.StatoScritto(), kEsportaStorico);
    EXPECT_EQ(Campi(prova, "lexxdump storico.A01", " 2"),
              " 2AP=2001 NP=A9998\n 2AP=2001 NP=A9999\n 2AP=2001 NP=A10000\n");
    EXPECT_EQ(Campi(prova, "errori.A01", "Manca classificazione"),
              "Manca classificazione: 2001A9998, record=5\n"
              "Manca classificazione: 2001A9999, record=7\n"
              "Manca classificazione: 2001A10000, record=30\n");
  }
}

TEST(EsportaAscii, TheTypeOfTheDocumentChoosesTheTagOfTheNote) {
  struct Caso {
    const char* td;
    const char* campo;
  };
  constexpr Caso kCasi[] = {{"02", "20"}, {"03", "15"}, {"04", "16"}, {"07", "17"}, {"08", "18"},
                            {"09", "19"}, {"01", ""},   {"05", ""},   {"06", ""},   {"", ""}};
  DocumentiDiProva prova;
  prova.Riferimento();
  std::string attesi;
  for (const Caso& caso : kCasi) {
    prova.Testo(prova.Documento({{"td", caso.td}}), "4", "NOTA");
    if (*caso.campo != '\0') attesi += std::string(caso.campo) + "NOTA\r\n";
  }
  EsportaDaMenu(prova.StatoScritto(), kEsportaCassazione);
  std::istringstream testo(prova.Dump("lexxdump cassazione.A01"));
  std::string campi;
  for (std::string riga; std::getline(testo, riga);) {
    if (riga.ends_with("NOTA\r")) campi += riga + "\n";
  }
  EXPECT_EQ(campi, attesi);
  EXPECT_EQ(Campi(prova, "errori.A01", "TD"), "TD = 01 e presenza nota: 2001A0018 (record = 7)\n");
}

TEST(EsportaAscii, FindingsOfADocumentStandInTheOrderOfTheRun) {
  DocumentiDiProva prova;
  const qint64 riferimento = prova.Riferimento({{"Fascicolo", Campo()}, {"Data", "15/03/1969"}});
  const qint64 primo = prova.Documento({{"IDRifBibl", riferimento},
                                        {"pagine", Campo()},
                                        {"td", "02"},
                                        {"TAbs", "800"},
                                        {"Bib", Campo()},
                                        {"LIN", "02"}});
  prova.Testo(primo, "8", "Abstract");
  const qint64 secondo = prova.Documento({{"IDRifBibl", riferimento},
                                          {"pagine", "2-1"},
                                          {"td", "01"},
                                          {"TAbs", "700"},
                                          {"LIN", "01"}});
  prova.Testo(secondo, "3", "[Titolo]");
  prova.Testo(secondo, "4", "Nota");
  prova.Testo(secondo, "8", "Abstract");
  EsportaDaMenu(prova.StatoScritto(), kEsportaCassazione, Risposta::Si);
  EXPECT_EQ(prova.Dump("errori.A01"),
            "Errore anno nel sottocampo DATA: 2001A0012\r\n"
            "Errore fascicolo mancante: 2001A0012\r\n"
            "Errore pagina mancante: 2001A0012\r\n"
            "Manca 'In tema di'/'Sommario' e TABS = 500/800: 2001A0012\r\n"
            "Errore BIB mancante: 2001A0012\r\n"
            "Errori sui dati bibliografici: 2001A0012\r\n"
            "Manca autore/curatore: 2001A0012\r\n"
            "Manca titolo: 2001A0012\r\n"
            "Contributo in lingua straniera senza traduzione del titolo: 2001A0012\r\n"
            "Manca nota e TD <> 01: 2001A0012\r\n"
            "Manca riassunto e TABS <> 600, 700, 400: 2001A0012\r\n"
            "C'\xe8 abstract in inglese e manca traduzione del titolo: rec. 1\r\n"
            "Manca fonte: 2001A0012\r\n"
            "Manca classificazione: 2001A0012, record=1\r\n"
            "Errore anno nel sottocampo DATA: 2001A0013\r\n"
            "Errore fascicolo mancante: 2001A0013\r\n"
            "Errore di paginazione: 2001A0013\r\n"
            "Manca autore/curatore: 2001A0013\r\n"
            "Manca titolo: 2001A0013\r\n"
            "Traduzione del titolo immessa dal compilatore: 2001A0013\r\n"
            "Contributo in lingua straniera: 2001A0013\r\n"
            "TD = 01 e presenza nota: 2001A0013 (record = 2)\r\n"
            "Manca 'In tema di' e TABS = 700: 2001A0013\r\n"
            "Manca fonte: 2001A0013\r\n"
            "Manca classificazione: 2001A0013, record=2\r\n"
            "\r\n");
}

TEST(EsportaAscii, AnyOfFourDataThatIsMissingIsTold) {
  DocumentiDiProva prova;
  const qint64 riferimento = prova.Riferimento();
  prova.Documento({{"IDRifBibl", riferimento}});
  std::string attesi;
  for (const char* colonna : {"pagine", "td", "TAbs", "Bib"}) {
    const qint64 id = prova.Documento({{"IDRifBibl", riferimento}, {colonna, ""}});
    attesi += "Errori sui dati bibliografici: 2001A00" + std::to_string(11 + id) + "\n";
  }
  EsportaDaMenu(prova.StatoScritto(), kEsportaStorico);
  EXPECT_EQ(Campi(prova, "errori.A01", "Errori sui"), attesi);
}

TEST(EsportaAscii, FieldsStandInTheirOrder) {
  DocumentiDiProva prova;
  const qint64 idDoc = prova.Esempio();
  for (const char* tipo : {"8", "7", "6", "5", "3", "1"}) {
    prova.Testo(idDoc, tipo, "testo");
  }
  EsportaDaMenu(prova.StatoScritto(), kEsportaIsis);
  std::istringstream testo(prova.Dump("lexxdump isis.A01"));
  std::string tag;
  for (std::string riga; std::getline(testo, riga);) tag += riga.substr(0, 2) + ",";
  EXPECT_EQ(tag, "20,19, 1, 2, 5,14,21, 3, 6,11,20,13, 9,88,77,10,22,23,24,25, 8,");
}

TEST(EsportaAscii, ARunFromTheMenuAsksMarksAndTells) {
  DocumentiDiProva prova;
  prova.Esempio();
  prova.stato.ControlloFonti = true;
  DialoghiScritti dialoghi;
  const auto marcatore = [&] {
    return prova.stato.DbArchivio.OpenRecordset("TabInfo").Fields("Storico").TestoOVuoto();
  };
  ScriviByte(prova.cartella.Dump("lexxdump isis.A00"), "prima\r\n");
  ScriviByte(prova.cartella.Dump("errori.A00"), "errori\r\n");
  Domande(dialoghi, Risposta::No, Risposta::Si);
  dialoghi.AttendeFileUscita(prova.cartella.Percorso() + "/Dump/lexxdump isis.A00", [&] {
    EXPECT_EQ(marcatore(), "1");
    EXPECT_EQ(prova.stato.FileBatch, "");
    EXPECT_TRUE(dialoghi.InAttesa());
  });
  prova.stato.FileBatch = "vecchio";
  EsportaAscii(prova.StatoScritto(), dialoghi, kEsportaCassazione);
  EXPECT_EQ(dialoghi.UltimaUscita(),
            QStringList({prova.cartella.Percorso() + "/Dump", "lexxdump*.*", "nuovo"}));
  EXPECT_FALSE(prova.stato.ControlloFonti);
  EXPECT_TRUE(prova.Dump("lexxdump isis.A00").starts_with("prima\r\n2001A0012\r\n11\r\n 1"));
  EXPECT_EQ(prova.Dump("errori.A00"), "errori\r\nConsegna A01\r\n\r\n");
  EXPECT_EQ(prova.Dump("errClasse.A00"), "Consegna A01\r\n\r\n");
  EXPECT_EQ(prova.Dump("errFonte.A00"), "Consegna A01\r\n\r\n");
  EXPECT_EQ(prova.Dump("errori.A01"), "");
  EXPECT_EQ(dialoghi.Messaggi(), QStringList("Fine esportazione della consegna A01"));
  EXPECT_EQ(dialoghi.Parole().last().titolo, "");
}

TEST(EsportaAscii, ABatchAsksNothingAndAppends) {
  DocumentiDiProva prova;
  prova.Documento({{"IDRifBibl", prova.Riferimento()}});
  prova.stato.ModoBatch = true;
  prova.stato.ControlloFonti = true;
  prova.stato.FileBatch = prova.cartella.Dump("lexxdump isis.b12");
  for (int giro = 0; giro < 2; ++giro) {
    DialoghiScritti dialoghi;
    EsportaAscii(prova.StatoScritto(), dialoghi, kEsportaIsis);
    EXPECT_EQ(dialoghi.Messaggi(), QStringList("Fine esportazione della consegna A01"));
  }
  EXPECT_EQ(Campi(prova, "lexxdump isis.b12", "2001"), "2001A0012\n2001A0012\n");
  EXPECT_EQ(prova.Dump("errFonte.b12"), "Consegna A01\r\n\r\nConsegna A01\r\n\r\n");
  EXPECT_EQ(Campi(prova, "errori.b12", "Manca fonte"),
            "Manca fonte: 2001A0012\nManca fonte: 2001A0012\n");
  EXPECT_TRUE(prova.stato.DbArchivio.OpenRecordset("TabInfo").Fields("Storico").Nullo());
}

// What may be appended to, from the menu and in the mode that a batch leaves.
TEST(EsportaAscii, NothingIsAppendedToWhatIsNoOutput) {
  struct Caso {
    const char* nome;
    QByteArray byte;
    const char* menu;
    const char* lotto;
  };
  const char* const lista = "è una lista di consegne";
  const char* const archivio = "è un archivio";
  const char* const altro = "non è un lexxdump";
  const Caso kCasi[] = {
      {"mdb/sigle.A03", "A01\r\n", lista, lista},
      {"mdb/SIGLE.A04", "", lista, lista},
      {"dump/lexxdump.mdb", QByteArray("SQLite format 3\0", 16) + "...", archivio, archivio},
      {"mdb/altro.mdb", QByteArray("\0\1\0\0Standard Jet DB\0", 20), archivio, archivio},
      {"dump/errori.A01", "Manca titolo: 2001A0012\r\n", altro, ""},
      {"dump/Lexxdump isis.A02", "qualsiasi", "", ""},
      {"dump/tutto.txt", "2001A0012\r\n14\r\n 12001A0012\r\n", "", ""},
      {"dump/vuoto.txt", "", "", ""},
  };
  for (const Caso& caso : kCasi) {
    DocumentiDiProva prova;
    prova.Esempio();
    const QString file = prova.cartella.Percorso() + '/' + caso.nome;
    for (const bool lotto : {false, true}) {
      SCOPED_TRACE(caso.nome);
      ScriviByte(file, caso.byte);
      prova.stato.ModoBatch = lotto;
      prova.stato.FileBatch = file;
      DialoghiScritti dialoghi;
      if (!lotto) {
        Domande(dialoghi, Risposta::No, Risposta::Si);
        dialoghi.AttendeFileUscita(file);
      }
      const QString errore =
          ErroreDi([&] { EsportaAscii(prova.StatoScritto(), dialoghi, kEsportaStorico); });
      const char* const atteso = lotto ? caso.lotto : caso.menu;
      EXPECT_EQ(errore, *atteso == '\0' ? QString()
                                        : "75 " + file + ' ' + atteso +
                                              ": non vi si aggiunge nulla. Scegliere un file "
                                              "lexxdump");
      EXPECT_EQ(Byte(file) == caso.byte, *atteso != '\0');
    }
  }
}

// What a run-time error leaves: its number and document, whole records alone, the findings so far.
TEST(EsportaAscii, ARunThatFailsLeavesWholeRecords) {
  const char* const senzaDati = "Errori sui dati bibliografici: 2001A0013\r\n";
  const char* const senzaAutore = "Manca autore/curatore: 2001A0013\r\n";
  struct Caso {
    const char* colonna;
    Campo valore;
    int errore;
    std::string errori;
  };
  const Caso kCasi[] = {
      {"IDRifBibl", Campo(), 94, ""},
      {"IDRifBibl", 0, 3021, ""},
      {"IDRifBibl", 32768, 6, ""},
      {"td", Campo(), 94,
       "Errore TD mancante: 2001A0013\r\n" + std::string(senzaDati) + senzaAutore},
      {"TAbs", Campo(), 94,
       "Errore TAbs mancante: 2001A0013\r\n" + std::string(senzaDati) + senzaAutore},
      {"LIN", Campo(), 94, ""},
      {"lo", Campo(), 94, ""},
      {"lr", Campo(), 94, ""},
      {"la", Campo(), 94, ""},
      {"Bib", "9", 3021, ""},
      {"pagine", QString(246, u'1'), 5,
       senzaAutore + std::string("Manca titolo: 2001A0013\r\n"
                                 "Manca classificazione: 2001A0013, record=2\r\n")},
  };
  for (const Caso& caso : kCasi) {
    SCOPED_TRACE(std::string(caso.colonna) + " " + caso.valore.TestoOVuoto().toStdString());
    DocumentiDiProva prova;
    prova.Esempio();
    EsportaDaMenu(prova.StatoScritto(), kEsportaIsis);
    const std::string intero = prova.Dump("lexxdump isis.A01");
    prova.Documento({{caso.colonna, caso.valore}});
    prova.Documento();
    const QString errore = Esporta(prova.StatoScritto(), kEsportaIsis);
    EXPECT_TRUE(errore.startsWith(QString::number(caso.errore) + ' ') &&
                errore.endsWith(" (documento 2, 2001A0013)"))
        << errore.toStdString();
    EXPECT_EQ(prova.Dump("lexxdump isis.A01"), intero);
    EXPECT_EQ(prova.Dump("errori.A01"), caso.errori);
    EXPECT_EQ(prova.Dump("errFonte.A01"), "");
  }
}

TEST(EsportaAscii, TheNumberOfADocumentFitsSixteenBits) {
  DocumentiDiProva prova({.inizio = "32767"});
  prova.Documento({{"IDRifBibl", prova.Riferimento()}});
  EXPECT_TRUE(Esporta(prova.StatoScritto(), kEsportaIsis).startsWith("6 "));
  EXPECT_EQ(Campi(prova, "lexxdump isis.A01", "2001"), "2001A32767\n");
}

TEST(EsportaAscii, ARunThatCannotStartLeavesTheMarkerAndNoClosingLine) {
  DocumentiDiProva prova;
  EXPECT_TRUE(Esporta(prova.StatoScritto(), kEsportaIsis).startsWith("3021 "));
  EXPECT_EQ(prova.Dump("errori.A01"), "");
  prova.Documento({{"IDRifBibl", prova.Riferimento()}});
  {
    DialoghiScritti dialoghi;
    Domande(dialoghi, Risposta::No, Risposta::Si);
    dialoghi.AttendeFileUscita({});
    EXPECT_EQ(NumeroErrore([&] { EsportaAscii(prova.StatoScritto(), dialoghi, kEsportaIsis); }),
              75);
  }
  // Where one of the four cannot be opened the others stay as they were.
  QFile::remove(prova.cartella.Dump("errFonte.A01"));
  ASSERT_TRUE(QDir().mkpath(prova.cartella.Dump("errFonte.A01")));
  ScriviByte(prova.cartella.Dump("lexxdump isis.A01"), "di prima");
  EXPECT_EQ(Esporta(prova.StatoScritto(), kEsportaIsis).section(": ", 1),
            prova.cartella.Dump("errFonte.A01"));
  EXPECT_EQ(prova.Dump("lexxdump isis.A01"), "di prima");
  prova.stato.DbArchivio.Execute("update TabInfo set Storico = null");
  ASSERT_TRUE(QDir(prova.cartella.Percorso() + "/dump").removeRecursively());
  EXPECT_TRUE(Esporta(prova.StatoScritto(), kEsportaIsis).startsWith("76 "));
  EXPECT_EQ(prova.stato.DbArchivio.OpenRecordset("TabInfo").Fields("Storico").TestoOVuoto(), "1");
}

TEST(EsportaAscii, AFullDiskClosesNoErrorFile) {
  DocumentiDiProva prova;
  prova.Documento({{"IDRifBibl", prova.Riferimento()}});
  prova.stato.ModoBatch = true;
  prova.stato.FileBatch = "/dev/full";
  DialoghiScritti dialoghi;
  EXPECT_EQ(NumeroErrore([&] { EsportaAscii(prova.StatoScritto(), dialoghi, kEsportaIsis); }), 61);
  EXPECT_TRUE(prova.Dump("errori.ull").ends_with("Manca classificazione: 2001A0012, record=1\r\n"));
  EXPECT_EQ(prova.Dump("errClasse.ull"), "Consegna A01\r\n");
}

}  // namespace
}  // namespace torvi
