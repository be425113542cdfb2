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
    return Torvi(QStringList{"--cartella", cartella_.Percorso()} + argomenti);
  }
  // The command must end well and say nothing but `errori`.
  void Riesce(const QStringList& argomenti, const QString& errori = {}) const {
    const EsitoProgramma esito = Esegui(argomenti);
    EXPECT_EQ(esito.codice, 0) << argomenti.join(u' ').toStdString();
    EXPECT_EQ(esito.errori, errori);
  }
  void PreparaEsempio(int documenti = 40) const {
    Riesce({"catalogo", cartella_.Mdb("catalogo norme.mdb")});
    Riesce({"esempio", Archivio(), "--documenti", QString::number(documenti)});
  }
  [[nodiscard]] QString Archivio() const { return cartella_.Mdb("A01.MDB"); }
  [[nodiscard]] QByteArray Uscita(const char* nome) const { return Byte(cartella_.Dump(nome)); }

  [[nodiscard]] static QString Informazioni(const QString& archivio) {
    return RigheTesto(OpenDatabase(archivio, Accesso::SolaLettura), "TabInfo").join('\n');
  }

  CartellaDiProva cartella_;
};

const QString kFine = "Fine esportazione della consegna A01\n";

TEST_F(Comandi, NuovoMakesADeliveryUnderTheUpperCasedName) {
  // The folder may be named behind the command, too.
  const QString lasciato = cartella_.Mdb("A01.MDB.1-0.parziale");
  ScriviByte(lasciato, "di un programma ucciso");
  EXPECT_EQ(
      Torvi({"master", cartella_.Mdb("master.mdb"), "--cartella", cartella_.Percorso()}).codice, 0);
  EXPECT_FALSE(QFile::exists(lasciato));
  const QString minuscolo = cartella_.Mdb("b02.mdb");
  const QString atteso = cartella_.Mdb("B02.MDB");
  ScriviByte(minuscolo, "una consegna da sostituire");
  const EsitoProgramma esito =
      Esegui({"nuovo", minuscolo, "--consegna=b02", "--inizio=12", "--centro=a", "--anno=2001"});
  EXPECT_EQ(esito.codice, 0) << esito.errori.toStdString();
  EXPECT_EQ(esito.uscita, atteso + "\n");
  EXPECT_EQ(Informazioni(atteso), "B02|12|A|2001|-|-|-|-|-|-|-|-|-");
  EXPECT_EQ(esito.errori,
            "Archivio creato; quello di prima è conservato come " + minuscolo + ".precedente\n");
  EXPECT_EQ(QDir(cartella_.Percorso() + "/mdb").entryList(QDir::Files),
            (QStringList{"B02.MDB", "b02.mdb.precedente", "master.mdb"}));
}

TEST_F(Comandi, NuovoNeedsAMaster) {
  const EsitoProgramma esito =
      Esegui({"nuovo", Archivio(), "--consegna=A01", "--inizio=12", "--centro=A", "--anno=2001"});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith("Errore di run-time '53': "));
  EXPECT_TRUE(esito.errori.contains("/mdb/master.mdb"));
  EXPECT_FALSE(QFile::exists(Archivio()));
}

TEST_F(Comandi, OptionsAnswerTheQuestionsOfTheExport) {
  PreparaEsempio();
  const QStringList esporta{"esporta", "isis", Archivio()};
  Riesce(esporta, kFine);
  EXPECT_FALSE(Uscita("errori.A01").contains("Manca fonte: "));
  const QByteArray daSolo = Uscita("lexxdump isis.A01");
  Riesce(esporta + QStringList{"--controllo-fonti"}, kFine);
  EXPECT_TRUE(Uscita("errori.A01").contains("Manca fonte: "));

  const QString comune = cartella_.Dump("lexxdump.tot");
  for (int volta = 1; volta <= 2; ++volta) {
    Riesce(esporta + QStringList{"--accoda", comune}, kFine);
    EXPECT_EQ(Byte(comune), daSolo.repeated(volta));
    EXPECT_EQ(Uscita("errClasse.tot").count("Consegna A01\r\n"), volta);
  }
}

TEST_F(Comandi, ErroriShowsWhatTheExportFound) {
  PreparaEsempio(3);
  const QStringList errori{"errori", "generici", Archivio()};
  EsitoProgramma esito = Esegui(errori);
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith(
      "Prima di usare questa funzione occorre utilizzare una delle tre sottovoci del sottomenù "
      "Formato ASCII di Esporta\n"));
  Riesce({"esporta", "storico", Archivio()}, kFine);
  ScriviByte(cartella_.Dump("errori.A01"), "Manca titolo: 2001A0012\r\n\r\n");
  esito = Esegui(errori);
  EXPECT_EQ(esito.codice, 0);
  EXPECT_EQ(esito.uscita, "Errori generici\r\n\r\nManca titolo: 2001A0012\r\n\r\n");
  QFile::remove(cartella_.Dump("errori.A01"));
  ASSERT_TRUE(QDir().mkpath(cartella_.Dump("errori.A01")));
  EXPECT_EQ(Esegui(errori).errori, "Non si legge " + cartella_.Dump("errori.A01") +
                                       " - Errore di accesso al percorso o al file: " +
                                       cartella_.Dump("errori.A01") + "\n");
  Riesce({"errori", "classe", Archivio()}, "Non ci sono errori di classificazione!\n");
  Riesce({"errori", "fonti", Archivio()}, "Non ci sono errori nelle fonti!\n");
  EXPECT_EQ(Informazioni(Archivio()), "A01|12|A|2001|1|-|-|-|-|-|1|1|1");
}

// What they write is compared elsewhere; here what they say, and what they mark.
TEST_F(Comandi, PrintsAndExtractionsSayThatTheyEndedAndMarkTheDelivery) {
  PreparaEsempio(12);
  for (const char* nome : {"testata new.rtf", "testata prospetto.rtf"}) {
    ScriviByte(cartella_.Percorso() + QLatin1Char('/') + nome, "{");
  }
  const auto fa = [this](const char* comando, const char* fine) {
    Riesce(QString(comando).split(' ') + QStringList{Archivio()}, fine);
  };
  fa("stampa hudoc", "Fine stampa HTML_ GEI (consegna A01)\n");
  fa("stampa celex", "Fine stampa HTML (consegna A01)\n");
  fa("estrai note", "Fine estrazione note ai documenti (consegna A01)\n");
  fa("estrai nuovi", "Fine estrazione nuovi ai documenti (consegna A01)\n");
  EXPECT_EQ(Esegui({"controllo", Archivio()}).uscita,
            "Sono stati utilizzate le seguenti funzioni:\r\n"
            "'Stampa HTML per controllo Celex'\r\n");
  fa("stampa completa", "Fine stampa\n");
  fa("stampa testi", "Fine stampa\n");
  fa("stampa prospetto-rtf", "Fine stampa prospetto\n");
  fa("stampa prospetto-html", "Fine stampa prospetto\n");
  fa("stampa consistenza", "TotTAbs: 12 --- Num. docc.: 12\nFine stampa consistenza\n");
  EXPECT_EQ(Informazioni(Archivio()), "A01|12|A|2001|-|1|1|1|1|1|-|-|-");
}

// Another program stands in for LibreOffice: it puts what it is given where it is told.
TEST_F(Comandi, StampaWritesAPdfWhereLibreOfficeIs) {
  PreparaEsempio(3);
  ScriviByte(cartella_.Percorso() + "/testata prospetto.rtf", "{");
  const QString programmi = cartella_.Percorso() + "/programmi";
  ASSERT_TRUE(QDir().mkpath(programmi));
  const auto stampa = [&](const char* nome, const QString& altri = ":/bin") {
    return Torvi({"--cartella", cartella_.Percorso(), "stampa", nome, Archivio(), "--pdf"},
                 {"/usr/bin/env", "PATH=" + programmi + altri});
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
    EXPECT_EQ(esito.uscita, cartella_.Dump(pdf) + "\n");
    EXPECT_EQ(Uscita(pdf), Uscita(file));
  }
  ScriviByte(soffice, "#!/bin/sh\n");
  EsitoProgramma esito = stampa("consistenza");
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains("LibreOffice non ha scritto "));
  EXPECT_FALSE(QFile::exists(cartella_.Dump("consistenza.A01.pdf")));
  ASSERT_TRUE(QFile::remove(soffice));
  esito = stampa("completa", {});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains("LibreOffice non è installato"));
  EXPECT_FALSE(QFile::exists(cartella_.Dump("stampaRTF-C-A01.rtf")));
}

TEST_F(Comandi, LottoGathersWhatTheDeliveriesExportAlone) {
  Riesce({"catalogo", cartella_.Mdb("catalogo norme.mdb")});
  QByteArray attese;
  for (int i = 1; i <= 5; ++i) {
    const QString archivio = cartella_.Mdb(QStringLiteral("P%1.MDB").arg(i));
    Riesce({"esempio", archivio, "--documenti", QString::number(4 + i)});
    Riesce({"esporta", "isis", archivio}, kFine);
    if (i != 3) attese += Uscita("lexxdump isis.A01");
  }
  {  // fails behind its first documents
    const Database rotto = OpenDatabase(cartella_.Mdb("P3.MDB"));
    rotto.Execute("update TabDocumento set IDRifBibl = 0 where IDDocumento = 4");
  }
  const QString lista = cartella_.Mdb("sigle.A02");
  ScriviByte(lista, "P1\r\nP2\r\np3\r\nP4\r\nP5\r\n");
  const QStringList lotto{"lotto", "isis", lista};
  EsitoProgramma esito = Esegui(lotto + QStringList{"--prosegui"});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(Uscita("lexxdump isis.A02"), attese);
  EXPECT_TRUE(esito.errori.contains("\nConsegna p3: 3021 --> ")) << esito.errori.toStdString();
  EXPECT_TRUE(esito.errori.endsWith("\nNon riuscite: p3: consegne fatte 4 di 5\n"));
  esito = Esegui(lotto);
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.contains("\n3021 --> ")) << esito.errori.toStdString();
  EXPECT_TRUE(esito.errori.endsWith("\nInterrotto alla consegna p3: consegne fatte 2 di 5\n"));
  esito = Esegui({"lotto", "note", lista + "x"});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_TRUE(esito.errori.startsWith("53 --> ")) << esito.errori.toStdString();
  Riesce({"lotto", "conteggio", lista});
}

TEST_F(Comandi, CercaWritesTheNumbersFound) {
  PreparaEsempio(12);
  const QStringList cerca{"cerca", Archivio(), "--campo", "titOLO"};
  {
    const Database archivio = OpenDatabase(Archivio());
    for (const int numero : {3, 7}) {
      const Recordset titolo = archivio.OpenRecordset(
          "select IDTesto from LegameDocTesto where IDDoc = ? and Tipo = \"0\"", {numero});
      archivio.Execute("update TabTesto set testo = ? where IDTesto = ?",
                       {"L'usura nel mutuo", titolo.Fields("IDTesto")});
    }
  }
  for (const QStringList& resto :
       {QStringList{"l'usura", "nel", "mutuo"}, QStringList{"--parte", "tutte", "mutuo", "l'usura"},
        QStringList{"--parte=sequenza", "ura ne?"}}) {
    EXPECT_EQ(Esegui(cerca + resto).uscita, "3\n7\n");
  }
  Riesce(cerca + QStringList{"mutuo"}, "Non esistono record che soddisfano la ricerca impostata\n");
}

TEST_F(Comandi, VerificaTellsASoundArchiveFromOneWithFaults) {
  PreparaEsempio();
  const QByteArray prima = Byte(Archivio());
  Riesce({"verifica", Archivio()}, QStringLiteral("Nessun difetto: %1\n").arg(Archivio()));
  EXPECT_EQ(Byte(Archivio()), prima);
  {
    const Database archivio = OpenDatabase(Archivio());
    archivio.Execute("delete * from TabTesto where IDTesto = 1");
  }
  const EsitoProgramma esito = Esegui({"verifica", Archivio()});
  EXPECT_EQ(esito.codice, 1);
  EXPECT_EQ(esito.uscita.count(u'\n'), 1) << esito.uscita.toStdString();
  EXPECT_TRUE(esito.uscita.contains("LegameDocTesto", Qt::CaseInsensitive));
  EXPECT_EQ(esito.errori, QStringLiteral("Difetti: 1 in %1\n").arg(Archivio()));
}

class Genuini : public Comandi {
 protected:
  void SetUp() override {
    QFile::copy(FileGenuino("catalogo norme data.mdb"), cartella_.Mdb("catalogo norme.mdb"));
    QFile::copy(FileGenuino("consegna.mdb"), Archivio());
    QFile::setPermissions(Archivio(), QFile::ReadOwner | QFile::WriteOwner);
  }
};

TEST_F(Genuini, AJetArchiveIsConvertedBesideOrInPlace) {
  const QByteArray originale = Byte(Archivio());
  const QString nuovo = cartella_.Mdb("nuovo.mdb");
  Riesce({"converti", Archivio(), nuovo});
  EXPECT_EQ(Byte(Archivio()), originale);
  RichiediArchivio(OpenDatabase(nuovo));
  // Once more: what is there stays.
  const QByteArray primo = Byte(nuovo);
  EXPECT_EQ(Esegui({"converti", Archivio(), nuovo}).codice, 1);
  EXPECT_EQ(Byte(nuovo), primo);

  static_cast<void>(Esegui({"errori", "fonti", Archivio()}));
  EXPECT_EQ(Byte(Archivio() + ".jet"), originale);
  EXPECT_TRUE(Byte(Archivio()).startsWith("SQLite format 3"));
}

TEST_F(Genuini, AJetMasterMakesDeliveries) {
  const QString master = cartella_.Mdb("master.mdb");
  EXPECT_TRUE(Esegui({"master", master, "--da", FileGenuino("classificazione.mdb")})
                  .errori.startsWith("Errore di run-time '3011': "));
  EXPECT_FALSE(QFile::exists(master));
  Riesce({"master", master, "--da", FileGenuino("master.mdb")});
  const QString esempio = cartella_.Mdb("esempio.mdb");
  Riesce({"esempio", esempio});
  Riesce({"verifica", esempio}, QStringLiteral("Nessun difetto: %1\n").arg(esempio));
  Riesce({"esporta", "isis", esempio}, kFine);
}

}  // namespace
}  // namespace torvi
