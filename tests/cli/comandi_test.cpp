#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "archive/verifica.h"
#include "comune/cartella_di_prova.h"
#include "programma.h"

namespace torvi {
namespace {

// An application folder with a sample delivery in it.
class Comandi : public testing::Test {
 protected:
  [[nodiscard]] EsitoProgramma Esegui(const QStringList& argomenti) const {
    return Torvi(QStringList{QStringLiteral("--cartella"), cartella_.Percorso()} + argomenti);
  }
  // The command must end well and say nothing but `errori`.
  void Riesce(const QStringList& argomenti, const QString& errori = {}) const {
    const EsitoProgramma esito = Esegui(argomenti);
    EXPECT_EQ(esito.codice, 0) << argomenti.join(u' ').toStdString();
    EXPECT_EQ(esito.errori, errori);
  }
  void PreparaEsempio(int documenti = 40) const {
    Riesce({QStringLiteral("catalogo"), cartella_.Mdb(QStringLiteral("catalogo norme.mdb"))});
    Riesce({QStringLiteral("esempio"), Archivio(), QStringLiteral("--documenti"),
            QString::number(documenti)});
  }
  [[nodiscard]] QString Archivio() const { return cartella_.Mdb(QStringLiteral("A01.MDB")); }
  [[nodiscard]] QByteArray Uscita(const char* nome) const {
    return Byte(cartella_.Dump(QString::fromLatin1(nome)));
  }

  CartellaDiProva cartella_;
};

const QString kFine = QStringLiteral("Fine esportazione della consegna A01\n");

TEST_F(Comandi, NuovoMakesADeliveryUnderTheUpperCasedName) {
  Riesce({QStringLiteral("master"), cartella_.Mdb(QStringLiteral("master.mdb"))});
  const QString minuscolo = cartella_.Mdb(QStringLiteral("b02.mdb"));
  const QString atteso = cartella_.Mdb(QStringLiteral("B02.MDB"));
  ScriviByte(minuscolo, "una consegna da sostituire");
  const EsitoProgramma esito = Esegui(
      {QStringLiteral("nuovo"), minuscolo, QStringLiteral("--consegna=b02"),
       QStringLiteral("--inizio=12"), QStringLiteral("--centro=a"), QStringLiteral("--anno=2001")});
  EXPECT_EQ(esito.codice, 0) << esito.errori.toStdString();
  EXPECT_EQ(esito.uscita, atteso + "\n");
  EXPECT_EQ(Informazioni(atteso), QStringLiteral("B02 12 A 2001 - - - - - - - - -"));
  EXPECT_FALSE(QFile::exists(minuscolo));
  EXPECT_EQ(QDir(cartella_.Percorso() + "/mdb").entryList(QDir::Files).size(), 2);
}

TEST_F(Comandi, NuovoNeedsAMaster) {
  const EsitoProgramma esito = Esegui(
      {QStringLiteral("nuovo"), Archivio(), QStringLiteral("--consegna=A01"),
       QStringLiteral("--inizio=12"), QStringLiteral("--centro=A"), QStringLiteral("--anno=2001")});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith(QStringLiteral("Errore di run-time '53': ")));
  EXPECT_TRUE(esito.errori.contains(QStringLiteral("/mdb/master.mdb")));
  EXPECT_FALSE(QFile::exists(Archivio()));
}

TEST_F(Comandi, EsportaWritesTheThreeFlavoursAndMarksTheDelivery) {
  PreparaEsempio();
  for (const char* formato : {"isis", "cassazione", "storico"}) {
    Riesce({QStringLiteral("esporta"), QString::fromLatin1(formato), Archivio()}, kFine);
    const QByteArray file = Uscita(("lexxdump " + std::string(formato) + ".A01").c_str());
    EXPECT_EQ(file.count(" 2AP=2001 NP=A"), 40) << formato;
    EXPECT_EQ(file.contains("\n22^t"), std::string(formato) == "isis") << formato;
  }
  EXPECT_EQ(Informazioni(Archivio()), QStringLiteral("A01 12 A 2001 1 - - - - - - - -"));
}

TEST_F(Comandi, OptionsAnswerTheQuestionsOfTheExport) {
  PreparaEsempio();
  const QStringList esporta{QStringLiteral("esporta"), QStringLiteral("isis"), Archivio()};
  Riesce(esporta, kFine);
  EXPECT_FALSE(Uscita("errori.A01").contains("Manca fonte: "));
  const QByteArray daSolo = Uscita("lexxdump isis.A01");
  Riesce(esporta + QStringList{QStringLiteral("--controllo-fonti")}, kFine);
  EXPECT_TRUE(Uscita("errori.A01").contains("Manca fonte: "));

  const QString comune = cartella_.Dump(QStringLiteral("lexxdump.tot"));
  for (int volta = 1; volta <= 2; ++volta) {
    Riesce(esporta + QStringList{QStringLiteral("--accoda"), comune}, kFine);
    EXPECT_EQ(Byte(comune), daSolo.repeated(volta));
    EXPECT_EQ(Uscita("errClasse.tot").count("Consegna A01\r\n"), volta);
  }
}

TEST_F(Comandi, ErroriShowsWhatTheExportFound) {
  PreparaEsempio(3);
  const QStringList errori{QStringLiteral("errori"), QStringLiteral("generici"), Archivio()};
  EsitoProgramma esito = Esegui(errori);
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith(QStringLiteral(
      "Prima di usare questa funzione occorre utilizzare una delle tre sottovoci del sottomenù "
      "Formato ASCII di Esporta\n")));
  Riesce({QStringLiteral("esporta"), QStringLiteral("storico"), Archivio()}, kFine);
  ScriviByte(cartella_.Dump(QStringLiteral("errori.A01")), "Manca titolo: 2001A0012\r\n\r\n");
  esito = Esegui(errori);
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(esito.uscita, QStringLiteral("Errori generici\r\n\r\nManca titolo: 2001A0012\r\n\r\n"));
  Riesce({QStringLiteral("errori"), QStringLiteral("classe"), Archivio()},
         QStringLiteral("Non ci sono errori di classificazione!\n"));
  Riesce({QStringLiteral("errori"), QStringLiteral("fonti"), Archivio()},
         QStringLiteral("Non ci sono errori nelle fonti!\n"));
  EXPECT_EQ(Informazioni(Archivio()), QStringLiteral("A01 12 A 2001 1 - - - - - 1 1 1"));
}

TEST_F(Comandi, StampaWritesAPrintAndMarksTheDelivery) {
  PreparaEsempio(12);
  struct Caso {
    const char* stampa;
    const char* messaggi;
    const char* file;
  };
  constexpr Caso kCasi[] = {
      {"completa", "Fine stampa\n", "stampaRTF-C-A01.rtf"},
      {"testi", "Fine stampa\n", "stampaRTF-T-A01.rtf"},
      {"prospetto-rtf", "Fine stampa prospetto\n", "prospetto A01.rtf"},
      {"prospetto-html", "Fine stampa prospetto\n", "prospetto A01.html"},
      {"consistenza", "TotTAbs: 12 --- Num. docc.: 12\nFine stampa consistenza\n",
       "consistenza.A01"}};
  for (const char* nome : {"testata new.rtf", "testata prospetto.rtf"}) {
    QFile::copy(QStringLiteral(TORVI_RADICE "/risorse/") + QLatin1String(nome),
                cartella_.Percorso() + QLatin1Char('/') + QLatin1String(nome));
  }
  for (const Caso& caso : kCasi) {
    Riesce({QStringLiteral("stampa"), QString::fromLatin1(caso.stampa), Archivio()},
           QString::fromUtf8(caso.messaggi));
    EXPECT_FALSE(Uscita(caso.file).isEmpty()) << caso.file;
  }
  EXPECT_EQ(Informazioni(Archivio()), QStringLiteral("A01 12 A 2001 - - 1 1 1 1 - - -"));
  Riesce(
      {QStringLiteral("stampa"), QStringLiteral("testi"), Archivio(), QStringLiteral("--filtro")},
      QStringLiteral("Fine stampa\n"));
  EXPECT_FALSE(Uscita("stampaRTF-T-A01.rtf").contains("2001A"));
}

TEST_F(Comandi, PrintsAndExtractionsNameTheDeliveryAndControlloTellsOfThem) {
  PreparaEsempio();
  struct Caso {
    const char* comando;
    const char* fine;
    const char* file;
    const char* contenuto;
  };
  const Caso kCasi[] = {
      {"stampa hudoc", "Fine stampa HTML_ GEI (consegna A01)\n", "stampaHTML_GEI A01.htm", "<h1>"},
      {"stampa celex", "Fine stampa HTML (consegna A01)\n", "stampaHTML A01.htm", "CELEX:3"},
      {"estrai note", "Fine estrazione note ai documenti (consegna A01)\n", "note.A01",
       "(Record: "},
      {"estrai nuovi", "Fine estrazione nuovi ai documenti (consegna A01)\n", "nuovi.A01",
       "Nuovi inserimenti in tabStato\r\n"},
  };
  for (const Caso& caso : kCasi) {
    Riesce(QString::fromLatin1(caso.comando).split(u' ') + QStringList{Archivio()},
           QString::fromLatin1(caso.fine));
    EXPECT_TRUE(Uscita(caso.file).contains(caso.contenuto)) << Uscita(caso.file).toStdString();
  }
  EXPECT_EQ(Esegui({QStringLiteral("controllo"), Archivio()}).uscita,
            QStringLiteral("Sono stati utilizzate le seguenti funzioni:\r\n"
                           "'Stampa HTML per controllo Celex'\r\n"));
}

// Another program stands in for LibreOffice: it puts what it is given where it is told.
TEST_F(Comandi, StampaWritesAPdfWhereLibreOfficeIs) {
  PreparaEsempio(3);
  ScriviByte(cartella_.Percorso() + "/testata prospetto.rtf", "{");
  const QString programmi = cartella_.Percorso() + "/programmi";
  ASSERT_TRUE(QDir().mkpath(programmi));
  const auto stampa = [&](const char* nome, const QString& altri = QStringLiteral(":/bin")) {
    return Torvi({QStringLiteral("--cartella"), cartella_.Percorso(), QStringLiteral("stampa"),
                  QLatin1String(nome), Archivio(), QStringLiteral("--pdf")},
                 {QStringLiteral("/usr/bin/env"), "PATH=" + programmi + altri});
  };
  const QString soffice = programmi + "/soffice";
  ScriviByte(soffice,
             "#!/bin/sh\n"
             "for file; do :; done\n"
             "while [ \"$1\" != --outdir ]; do shift; done\n"
             "nome=${file##*/}\n"
             "cp \"$file\" \"$2/${nome%.*}.pdf\"\n");
  ASSERT_TRUE(QFile::setPermissions(soffice, QFile::ReadOwner | QFile::ExeOwner));
  for (const auto& [nome, file, pdf] :
       {std::tuple{"consistenza", "consistenza.A01", "consistenza.A01.pdf"},
        {"prospetto-html", "prospetto A01.html", "prospetto A01.html.pdf"},
        {"prospetto-rtf", "prospetto A01.rtf", "prospetto A01.pdf"}}) {
    const EsitoProgramma esito = stampa(nome);
    EXPECT_EQ(esito.codice, 0) << esito.errori.toStdString();
    EXPECT_EQ(esito.uscita, cartella_.Dump(QLatin1String(pdf)) + "\n");
    EXPECT_EQ(Uscita(pdf), Uscita(file));
  }
  ScriviByte(soffice, "#!/bin/sh\n");
  EsitoProgramma esito = stampa("consistenza");
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains(QStringLiteral("LibreOffice non ha scritto ")));
  EXPECT_FALSE(QFile::exists(cartella_.Dump(QStringLiteral("consistenza.A01.pdf"))));
  ASSERT_TRUE(QFile::remove(soffice));
  esito = stampa("completa", {});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains(QStringLiteral("LibreOffice non è installato")));
  EXPECT_FALSE(QFile::exists(cartella_.Dump(QStringLiteral("stampaRTF-C-A01.rtf"))));
}

TEST_F(Comandi, LottoGathersWhatTheDeliveriesExportAlone) {
  Riesce({QStringLiteral("catalogo"), cartella_.Mdb(QStringLiteral("catalogo norme.mdb"))});
  QByteArray attese;
  for (int i = 1; i <= 5; ++i) {
    const QString archivio = cartella_.Mdb(QStringLiteral("P%1.MDB").arg(i));
    Riesce({QStringLiteral("esempio"), archivio, QStringLiteral("--documenti"),
            QString::number(4 + i)});
    Riesce({QStringLiteral("esporta"), QStringLiteral("isis"), archivio}, kFine);
    if (i != 3) attese += Uscita("lexxdump isis.A01");
  }
  {  // fails behind its first documents
    const Database rotto = OpenDatabase(cartella_.Mdb(QStringLiteral("P3.MDB")));
    rotto.Execute(QStringLiteral("update TabDocumento set IDRifBibl = 0 where IDDocumento = 4"));
  }
  const QString lista = cartella_.Mdb(QStringLiteral("sigle.A02"));
  ScriviByte(lista, "P1\r\nP2\r\np3\r\nP4\r\nP5\r\n");
  const QStringList lotto{QStringLiteral("lotto"), QStringLiteral("isis"), lista};
  EsitoProgramma esito = Esegui(lotto + QStringList{QStringLiteral("--prosegui")});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(Uscita("lexxdump isis.A02"), attese);
  EXPECT_TRUE(esito.errori.contains(QStringLiteral("\nConsegna p3: 3021 --> ")))
      << esito.errori.toStdString();
  EXPECT_TRUE(esito.errori.endsWith(QStringLiteral("\nNon riuscite: p3: consegne fatte 4 di 5\n")));
  esito = Esegui(lotto);
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains(QStringLiteral("\n3021 --> "))) << esito.errori.toStdString();
  EXPECT_TRUE(esito.errori.endsWith(
      QStringLiteral("\nInterrotto alla consegna p3: consegne fatte 2 di 5\n")));
  esito = Esegui({QStringLiteral("lotto"), QStringLiteral("note"), lista + "x"});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith(QStringLiteral("53 --> "))) << esito.errori.toStdString();
  Riesce({QStringLiteral("lotto"), QStringLiteral("conteggio"), lista});
}

TEST_F(Comandi, CercaWritesTheNumbersFound) {
  PreparaEsempio(12);
  const QStringList cerca{QStringLiteral("cerca"), Archivio(), QStringLiteral("--campo"),
                          QStringLiteral("Titolo")};
  {
    const Database archivio = OpenDatabase(Archivio());
    for (const int numero : {3, 7}) {
      const Recordset titolo = archivio.OpenRecordset(
          QStringLiteral("select IDTesto from LegameDocTesto where IDDoc = ? and Tipo = \"0\""),
          {numero});
      archivio.Execute(QStringLiteral("update TabTesto set testo = ? where IDTesto = ?"),
                       {QStringLiteral("L'usura nel mutuo"), titolo.Fields("IDTesto")});
    }
  }
  for (const QStringList& resto :
       {QStringList{QStringLiteral("l'usura"), QStringLiteral("nel"), QStringLiteral("mutuo")},
        QStringList{QStringLiteral("--parte"), QStringLiteral("tutte"), QStringLiteral("mutuo"),
                    QStringLiteral("l'usura")},
        QStringList{QStringLiteral("--parte=sequenza"), QStringLiteral("ura ne?")}}) {
    EXPECT_EQ(Esegui(cerca + resto).uscita, QStringLiteral("3\n7\n"));
  }
  Riesce(cerca + QStringList{QStringLiteral("mutuo")},
         QStringLiteral("Non esistono record che soddisfano la ricerca impostata\n"));
}

TEST_F(Comandi, VerificaTellsASoundArchiveFromOneWithFaults) {
  PreparaEsempio();
  const QByteArray prima = Byte(Archivio());
  Riesce({QStringLiteral("verifica"), Archivio()},
         QStringLiteral("Nessun difetto: %1\n").arg(Archivio()));
  EXPECT_EQ(Byte(Archivio()), prima);
  {
    const Database archivio = OpenDatabase(Archivio());
    archivio.Execute(QStringLiteral("delete * from TabTesto where IDTesto = 1"));
  }
  const EsitoProgramma esito = Esegui({QStringLiteral("verifica"), Archivio()});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(esito.uscita.count(u'\n'), 1) << esito.uscita.toStdString();
  EXPECT_TRUE(esito.uscita.contains(QStringLiteral("LegameDocTesto"), Qt::CaseInsensitive));
  EXPECT_EQ(esito.errori, QStringLiteral("Difetti: 1 in %1\n").arg(Archivio()));
}

class Genuini : public Comandi {
 protected:
  void SetUp() override {
    if (FileGenuino(QStringLiteral("consegna.mdb")).isEmpty()) {
      GTEST_SKIP() << "the genuine Jet files are not at hand";
    }
    QFile::copy(FileGenuino(QStringLiteral("catalogo norme data.mdb")),
                cartella_.Mdb(QStringLiteral("catalogo norme.mdb")));
    QFile::copy(FileGenuino(QStringLiteral("consegna.mdb")), Archivio());
    QFile::setPermissions(Archivio(), QFile::ReadOwner | QFile::WriteOwner);
  }
};

TEST_F(Genuini, AJetArchiveIsConvertedBesideOrInPlace) {
  const QByteArray originale = Byte(Archivio());
  const QString nuovo = cartella_.Mdb(QStringLiteral("nuovo.mdb"));
  Riesce({QStringLiteral("converti"), Archivio(), nuovo});
  EXPECT_EQ(Byte(Archivio()), originale);
  RichiediArchivio(OpenDatabase(nuovo));
  // Once more: what is there stays.
  const QByteArray primo = Byte(nuovo);
  EXPECT_EQ(Esegui({QStringLiteral("converti"), Archivio(), nuovo}).codice, 1);
  EXPECT_EQ(Byte(nuovo), primo);

  static_cast<void>(Esegui({QStringLiteral("errori"), QStringLiteral("fonti"), Archivio()}));
  EXPECT_EQ(Byte(Archivio() + ".jet"), originale);
  EXPECT_TRUE(Byte(Archivio()).startsWith("SQLite format 3"));
}

// As it came it cites a reference, a source text and numbers that are not there; mended, it goes
// through.
TEST_F(Genuini, AJetDeliveryIsExportedInThreeFlavours) {
  const QStringList isis{QStringLiteral("esporta"), QStringLiteral("isis"), Archivio()};
  const EsitoProgramma guasto = Esegui(isis);
  EXPECT_EQ(guasto.codice, 1);
  EXPECT_TRUE(guasto.errori.contains(QStringLiteral("\nErrore di run-time '3021': ")))
      << guasto.errori.toStdString();
  EXPECT_EQ(Uscita("lexxdump isis.A01").count(" 2AP=2001 NP=A"), 6);
  {
    const Database archivio = OpenDatabase(Archivio());
    archivio.Execute(
        QStringLiteral("delete * from TabDocumento where IDDocumento = 8 or IDDocumento = 11"));
    archivio.Execute(QStringLiteral("update TabFonte set numero = \"\" where numero is null"));
  }
  for (const char* formato : {"isis", "cassazione", "storico"}) {
    Riesce({QStringLiteral("esporta"), QString::fromLatin1(formato), Archivio()}, kFine);
    const QByteArray file = Uscita(("lexxdump " + std::string(formato) + ".A01").c_str());
    EXPECT_EQ(file.count(" 2AP=2001 NP=A"), 21) << formato;
  }
  EXPECT_EQ(Esegui({QStringLiteral("errori"), QStringLiteral("fonti"), Archivio()}).uscita,
            QStringLiteral(
                "Errori nelle fonti\r\n\r\n"
                "Fonte TAR senza regione: Tribunale amministrativo regionale 2000 (2001A0013)\r\n"
                "Fonte GICO con numero > 1000: C. Cost. 12 marzo 2001, n. 1005 (2001A0014)\r\n"
                "Fonte GICO/GICA senza numero: ord. C. Cost. 2000 (2001A0014)\r\n\r\n"));
}

TEST_F(Genuini, AJetMasterMakesDeliveries) {
  const QString master = cartella_.Mdb(QStringLiteral("master.mdb"));
  Riesce({QStringLiteral("master"), master, QStringLiteral("--da"),
          FileGenuino(QStringLiteral("master.mdb"))});
  const QString esempio = cartella_.Mdb(QStringLiteral("esempio.mdb"));
  Riesce({QStringLiteral("esempio"), esempio});
  Riesce({QStringLiteral("verifica"), esempio},
         QStringLiteral("Nessun difetto: %1\n").arg(esempio));
  Riesce({QStringLiteral("esporta"), QStringLiteral("isis"), esempio}, kFine);
}

}  // namespace
}  // namespace torvi
