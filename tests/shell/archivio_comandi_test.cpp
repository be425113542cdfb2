#include "shell/archivio_comandi.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <csignal>

#include "archive/copia_archivio.h"
#include "archive/schema.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/file_limitati.h"
#include "shell/apertura.h"

namespace torvi {
namespace {

const QString kApri = "Apri archivio";
const QString kNuovo = "Nuovo archivio";

// A file dialog that fails with a given error instead of giving a file.
class DialoghiGuasti : public DialoghiScritti {
 public:
  explicit DialoghiGuasti(Errore errore) : errore_(errore) {}
  [[nodiscard]] QString ScegliFile(const RichiestaFile& /*richiesta*/) override {
    throw ErroreEsecuzione::ConDescrizione(errore_, "guasto del dialogo");
  }

 private:
  Errore errore_;
};

// Killed with a write begun and spilled to disk.
void LasciaAMeta(const QString& percorso) {
  const pid_t figlio = fork();
  if (figlio == 0) {
    const Database archivio = OpenDatabase(percorso);
    const UnitaDiScrittura unita(archivio);
    for (int i = 0; i < 400; ++i) {
      Aggiungi(archivio, "TabTesto", {{"testo", QString(10000, 'x')}});
    }
    (void)std::raise(SIGKILL);
  }
  int esito = 0;
  ASSERT_EQ(waitpid(figlio, &esito, 0), figlio);
  ASSERT_TRUE(WIFSIGNALED(esito));
}

class ArchivioComandi : public testing::Test {
 protected:
  ArchivioComandi() { stato.CartellaApplicazione = cartella.Percorso(); }

  void CreaMasterVuoto() const { CreaDatabase(cartella.Mdb("master.mdb"), SchemaArchivio()); }
  [[nodiscard]] QStringList FileMdb() const {
    return QDir(cartella.Percorso() + "/mdb").entryList(QDir::Files, QDir::Name);
  }

  const CartellaDiProva cartella;
  StatoGlobale stato;
};

TEST_F(ArchivioComandi, OpensTheChosenFile) {
  cartella.NuovaConsegna("A01.MDB");
  DialoghiScritti dialoghi;
  dialoghi.AttendeFile(kApri, cartella.Mdb("A01.MDB"));
  ASSERT_TRUE(ComandoApri(stato, dialoghi));
  EXPECT_EQ(stato.PathArchivio, cartella.Mdb("A01.MDB"));
  EXPECT_EQ(TitoloArchivio(stato.PathArchivio), "Torvi Editor (" + stato.PathArchivio + ")");
  EXPECT_FALSE(stato.DbArchivio.OpenRecordset("TabInfo").Eof());
  EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
  const RichiestaFile& richiesta = dialoghi.UltimaRichiesta();
  EXPECT_EQ(richiesta.filtro, "Database file (*.mdb)|*.mdb");
  EXPECT_EQ(richiesta.estensione, "mdb");
  EXPECT_EQ(richiesta.cartella, cartella.Percorso() + "/mdb");
  EXPECT_TRUE(richiesta.deveEsistere);
  EXPECT_FALSE(richiesta.chiedeSeCreare);
}

TEST_F(ArchivioComandi, TrapsTheDialogByNumber) {
  struct Caso {
    Errore errore;
    QStringList messaggi;
  };
  const QString guasto = "guasto del dialogo";
  for (const Caso& caso :
       {Caso{Errore::OperazioneAnnullata, {guasto}}, Caso{Errore::OggettoNonTrovato, {guasto}},
        Caso{Errore::DatabaseNonTrovato, {guasto}}, Caso{Errore::Overflow, {}},
        Caso{Errore::SintassiErrata, {}}}) {
    DialoghiGuasti dialoghi(caso.errore);
    EXPECT_FALSE(ComandoApri(stato, dialoghi));
    EXPECT_EQ(dialoghi.Messaggi(), caso.messaggi) << static_cast<int>(caso.errore);
  }
  // No current record: the next statement opens the path that stands.
  cartella.NuovaConsegna("A01.MDB");
  stato.PathArchivio = cartella.Mdb("A01.MDB");
  DialoghiGuasti dialoghi(Errore::NessunRecordCorrente);
  EXPECT_TRUE(ComandoApri(stato, dialoghi));
  EXPECT_EQ(dialoghi.Messaggi(), QStringList{guasto});
  EXPECT_TRUE(stato.DbArchivio.Aperto());
}

TEST_F(ArchivioComandi, NamesAFileThatIsNoArchiveAndLeavesItAlone) {
  stato.DbArchivio = cartella.NuovaConsegna("PRIMA.MDB");
  ScriviByte(cartella.Mdb("vuoto.mdb"), {});
  ScriviByte(cartella.Mdb("testo.mdb"), "Questo non è un database, ma è lungo abbastanza.");
  ScriviByte(cartella.Mdb("jet.mdb"),
             QByteArray("\0\1\0\0Standard Jet DB\0\1", 21) + QByteArray(4096, '\x7f'));
  const Tabella altra = {"Altra", {{"x"}}, {}};
  CreaDatabase(cartella.Mdb("altro.mdb"), std::span(&altra, 1));
  for (const char* nome : {"vuoto.mdb", "testo.mdb", "jet.mdb", "altro.mdb", "assente.mdb"}) {
    const QString percorso = cartella.Mdb(nome);
    const QByteArray prima = QFile::exists(percorso) ? Byte(percorso) : QByteArray();
    DialoghiScritti dialoghi;
    dialoghi.AttendeFile(kApri, percorso);
    EXPECT_FALSE(ComandoApri(stato, dialoghi)) << nome;
    EXPECT_EQ(dialoghi.Messaggi().size(), 1) << nome;
    EXPECT_TRUE(dialoghi.UltimoMessaggio().contains(percorso))
        << dialoghi.UltimoMessaggio().toStdString();
    EXPECT_EQ(QFile::exists(percorso) ? Byte(percorso) : QByteArray(), prima) << nome;
  }
  EXPECT_EQ(stato.DbArchivio.Name(), cartella.Mdb("PRIMA.MDB"));
  EXPECT_TRUE(stato.DbArchivio.Aperto());
  EXPECT_EQ(FileMdb().size(), 5);
}

TEST_F(ArchivioComandi, ConvertsAGenuineArchiveInPlace) {
  const QString genuino = FileGenuino("consegna.mdb");
  const QString percorso = cartella.Mdb("consegna.mdb");
  ASSERT_TRUE(QFile::copy(genuino, percorso));
  DialoghiScritti dialoghi;
  dialoghi.AttendeFile(kApri, percorso);
  ASSERT_TRUE(ComandoApri(stato, dialoghi));
  EXPECT_EQ(dialoghi.Messaggi(),
            QStringList{"Archivio convertito; l'originale è conservato come " + percorso + ".jet"});
  EXPECT_EQ(Byte(percorso + ".jet"), Byte(genuino));
  EXPECT_FALSE(stato.DbArchivio.OpenRecordset("TabDocumento").Eof());
}

TEST_F(ArchivioComandi, LeavesAGenuineFileThatIsNoArchiveAsItIs) {
  const QString genuino = FileGenuino("catalogo norme.mdb");
  const QString percorso = cartella.Mdb("catalogo.mdb");
  ASSERT_TRUE(QFile::copy(genuino, percorso));
  DialoghiScritti dialoghi;
  dialoghi.AttendeFile(kApri, percorso);
  EXPECT_FALSE(ComandoApri(stato, dialoghi));
  EXPECT_EQ(dialoghi.Messaggi().size(), 1);
  EXPECT_EQ(Byte(percorso), Byte(genuino));
  EXPECT_EQ(FileMdb(), QStringList{"catalogo.mdb"});
}

TEST_F(ArchivioComandi, MakesADeliveryFromTheMaster) {
  CreaMasterVuoto();
  const QByteArray master = Byte(cartella.Mdb("master.mdb"));
  ScriviByte(cartella.Mdb("prova.mdb"), "a file of that name, in another case");
  ScriviByte(cartella.Mdb("PROVA.MDB-journal"), "a journal that must not be played back");
  DialoghiScritti dialoghi;
  dialoghi.AttendeFile(kNuovo, cartella.Mdb("prova.mdb"));
  dialoghi.AttendeInformazione("a01|35x|a|2001");
  ASSERT_TRUE(ComandoNuovo(stato, dialoghi));
  EXPECT_TRUE(dialoghi.UltimaRichiesta().chiedeSeCreare);
  EXPECT_FALSE(dialoghi.UltimaRichiesta().deveEsistere);
  EXPECT_EQ(stato.PathArchivio, cartella.Mdb("prova.mdb"));
  EXPECT_EQ(NumeroErrore([&] { stato.DbArchivio.Close(); }), 3420);
  // A journal goes where its file goes.
  EXPECT_EQ(FileMdb(), (QStringList{"PROVA.MDB", "master.mdb", "prova.mdb.precedente"}));
  EXPECT_EQ(dialoghi.Messaggi(), QStringList{"Archivio creato; quello di prima è conservato come " +
                                             cartella.Mdb("prova.mdb.precedente")});
  EXPECT_EQ(Byte(cartella.Mdb("master.mdb")), master);

  EXPECT_EQ(RigheTesto(OpenDatabase(cartella.Mdb("PROVA.MDB")), "TabInfo"),
            QStringList("A01|35x|A|2001|-|-|-|-|-|-|-|-|-"));
}

TEST_F(ArchivioComandi, StopsWhereTheOperatorStops) {
  CreaMasterVuoto();
  {
    DialoghiScritti dialoghi;
    dialoghi.AttendeFileAnnullato(kNuovo);
    EXPECT_FALSE(ComandoNuovo(stato, dialoghi));
    EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
  }
  {
    DialoghiScritti dialoghi;
    dialoghi.AttendeFile(kNuovo, {});
    EXPECT_FALSE(ComandoNuovo(stato, dialoghi));
    EXPECT_EQ(dialoghi.Messaggi(), QStringList{"Nome archivio non valido"});
  }
  DialoghiScritti dialoghi;
  dialoghi.AttendeFile(kNuovo, cartella.Mdb("x.mdb"));
  dialoghi.AttendeInformazione({});
  EXPECT_FALSE(ComandoNuovo(stato, dialoghi));
  EXPECT_EQ(dialoghi.Messaggi(), QStringList{"Archivio nuovo non creato!"});
  EXPECT_EQ(dialoghi.Parole().last().icona, Icona::Informazione);
  EXPECT_EQ(FileMdb(), QStringList{"master.mdb"});
}

TEST_F(ArchivioComandi, ShowsWhyADeliveryCannotBeMade) {
  const auto prova = [this](const QString& percorso, const QString& info) {
    DialoghiScritti dialoghi;
    dialoghi.AttendeFile(kNuovo, percorso);
    dialoghi.AttendeInformazione(info);
    EXPECT_FALSE(ComandoNuovo(stato, dialoghi));
    return dialoghi.Messaggi().join('\n');
  };
  const QString dati = "A01|1|A|2001";
  const QString master = cartella.Mdb("master.mdb");
  EXPECT_EQ(prova(cartella.Mdb("x.mdb"), dati), "Impossibile trovare il file: " + master);

  ScriviByte(master, "no archive at all");
  ScriviByte(cartella.Mdb("X.MDB"), "stays");
  EXPECT_TRUE(prova(cartella.Mdb("x.mdb"), dati).contains(master));
  EXPECT_EQ(Byte(cartella.Mdb("X.MDB")), "stays");

  QFile::remove(master);
  CreaMasterVuoto();
  EXPECT_EQ(prova(master, dati), "Autorizzazione negata: " + master);
  EXPECT_EQ(prova(cartella.Percorso() + "/assente/x.mdb", dati),
            "Impossibile trovare il percorso: " + cartella.Percorso() + "/assente");
  EXPECT_EQ(FileMdb(), (QStringList{"X.MDB", "master.mdb"}));

  EXPECT_EQ(prova(cartella.Mdb("x.mdb"), "A01|1|A"), "Indice non incluso nell'intervallo.");
  EXPECT_EQ(prova(cartella.Mdb("x.mdb"), "A01|1|AB|2001"),
            "IDCentroSpoglio ha 2 caratteri, al massimo possono essere 1: archivio non creato.");
  EXPECT_EQ(prova(cartella.Mdb("x.mdb"), QString(256, 'a') + "|1|A|2001"),
            "Consegna ha 256 caratteri, al massimo possono essere 255: archivio non creato.");
  ASSERT_TRUE(QDir(cartella.Mdb("y")).mkpath("."));
  EXPECT_EQ(prova(cartella.Mdb("Y"), dati),
            cartella.Mdb("y") + " è una cartella: scrivere il nome di un file.");
  {
    const FileLimitati limitati(20000);  // in the middle of the copy
    EXPECT_TRUE(prova(cartella.Mdb("x.mdb"), dati).endsWith(": " + cartella.Mdb("X.MDB")));
  }
  const QByteArray sano = Byte(master);
  ScriviByte(master, QByteArray(sano).replace(sano.size() - 5 * 8192, 8192, QByteArray(8192, 'x')));
  EXPECT_TRUE(prova(cartella.Mdb("x.mdb"), dati).startsWith("L'archivio scritto come "));
  ScriviByte(master, sano);
  Aggiungi(OpenDatabase(master), "TabInfo", {{"Consegna", "A01"}});
  EXPECT_TRUE(prova(cartella.Mdb("x.mdb"), dati)
                  .startsWith("Il master " + master + " contiene già i dati di una consegna"));
  EXPECT_EQ(Byte(cartella.Mdb("X.MDB")), "stays");
  EXPECT_EQ(FileMdb(), (QStringList{"X.MDB", "master.mdb"}));
}

// A write that a kill cut off in the master, and one in what is replaced, are taken back first.
TEST_F(ArchivioComandi, CopiesAndKeepsWhatIsCommitted) {
  CreaMasterVuoto();
  cartella.NuovaConsegna("B01.MDB").Close();
  for (const char* nome : {"master.mdb", "B01.MDB"}) LasciaAMeta(cartella.Mdb(nome));
  ASSERT_TRUE(QFile::exists(cartella.Mdb("B01.MDB-journal")));
  // A link has the name: what it leads to is replaced, and named.
  ASSERT_TRUE(QFile::rename(cartella.Mdb("B01.MDB"), cartella.Mdb("VERO.MDB")) &&
              QFile::rename(cartella.Mdb("B01.MDB-journal"), cartella.Mdb("VERO.MDB-journal")) &&
              QFile::link(cartella.Mdb("VERO.MDB"), cartella.Mdb("b01.mdb")));
  DialoghiScritti dialoghi;
  EXPECT_EQ(CreaConsegna(stato, cartella.Mdb("b01.mdb"), "b01|1|a|2001", dialoghi),
            cartella.Mdb("VERO.MDB"));
  EXPECT_EQ(FileMdb(), (QStringList{"VERO.MDB", "VERO.MDB.precedente", "b01.mdb", "master.mdb"}));
  for (const char* nome : {"VERO.MDB", "VERO.MDB.precedente"}) {
    const Database archivio = OpenDatabase(cartella.Mdb(nome));
    EXPECT_TRUE(archivio.OpenRecordset("TabTesto").Eof()) << nome;
    EXPECT_EQ(archivio.Conta("from TabInfo"), 1) << nome;
  }
  const QByteArray master = Byte(cartella.Mdb("master.mdb"));
  LasciaAMeta(cartella.Mdb("master.mdb"));
  const FileNuovo copia(cartella.Mdb("copia.mdb"));
  CopiaArchivio(cartella.Mdb("master.mdb"), copia);
  EXPECT_TRUE(Byte(copia.Percorso()) == master);
}

TEST_F(ArchivioComandi, OpensAnArchiveThatIsNoDeliveryAndSaysSo) {
  const Database archivio = cartella.NuovaConsegna("A01.MDB");
  const auto messaggi = [&] {
    DialoghiScritti dialoghi;
    dialoghi.AttendeFile(kApri, cartella.Mdb("A01.MDB"));
    EXPECT_TRUE(ComandoApri(stato, dialoghi));
    return dialoghi.Messaggi().join('|');
  };
  const QString detto = "Nell'archivio " + cartella.Mdb("A01.MDB") +
                        " %1: stampe ed esportazioni non riusciranno. Usare una copia di riserva, "
                        "o avvertire l'assistenza.";
  Aggiungi(archivio, "TabInfo", {});
  EXPECT_EQ(messaggi(), detto.arg("ci sono i dati di più consegne (TabInfo ha 2 righe)"));
  archivio.Execute("delete * from TabInfo");
  EXPECT_EQ(messaggi(), detto.arg("mancano i dati della consegna (TabInfo è vuota)"));
}

TEST_F(ArchivioComandi, EndsInEveryState) {
  const QString domanda = "Confermi l'uscita ?";
  DialoghiScritti dialoghi;
  for (const Risposta risposta : {Risposta::Annulla, Risposta::Ok, Risposta::Ok, Risposta::Ok}) {
    dialoghi.AttendeDomanda(domanda, {}, Pulsanti::OkAnnulla, risposta);
  }
  StatoGlobale aperto = cartella.StatoConConsegna();
  EXPECT_FALSE(ComandoEsci(aperto, dialoghi));
  EXPECT_TRUE(aperto.DbArchivio.Aperto());
  EXPECT_TRUE(ComandoEsci(aperto, dialoghi));
  EXPECT_EQ(NumeroErrore([&] { ComandoChiudi(aperto); }), 3420);
  EXPECT_TRUE(ComandoEsci(aperto, dialoghi));  // closed already
  EXPECT_TRUE(ComandoEsci(stato, dialoghi));   // never opened
  EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
}

}  // namespace
}  // namespace torvi
