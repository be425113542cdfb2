// A process that exports again and again is killed at random moments. Whatever the moment, the four
// files are those of one whole run, and what was being appended goes with the next look at them.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include "comune/dialoghi_scritti.h"
#include "export/documento_di_prova.h"
#include "export/esporta_ascii.h"
#include "export/file_testo.h"

namespace torvi {
namespace {

template <typename Azione>
pid_t Figlio(Azione&& azione) {
  const pid_t figlio = fork();
  if (figlio != 0) return figlio;
  try {
    azione();
  } catch (const std::exception& errore) {
    (void)std::fprintf(stderr, "%s\n", errore.what());
  }
  _exit(1);
}

bool Ucciso(pid_t figlio) {
  int esito = 0;
  waitpid(figlio, &esito, 0);
  return WIFSIGNALED(esito);
}

QStringList InDump(const CartellaDiProva& cartella) {
  return QDir(cartella.Percorso() + "/dump").entryList(QDir::Files | QDir::Hidden);
}

// One delivery that gives two versions of its files, by its first number.
class UccisioniUscite : public testing::TestWithParam<bool> {
 protected:
  static constexpr int kUccisioni = 40;
  static constexpr int kMassimoRitardoMicrosecondi = 120'000;

  UccisioniUscite() {
    const qint64 riferimento = prova_.Riferimento();
    for (int i = 0; i < 60; ++i) {
      const qint64 id = prova_.Documento({{"IDRifBibl", riferimento}});
      prova_.Testo(id, "1", QString("parola ").repeated(400));
      prova_.Coppia(id, {{"classe2000-D", "libero"}, {"Check", "3"}});
      const qint64 fonte = prova_.Riga(
          "TabFonte", {{"TP", "GIA"}, {"fonte", 117}, {"IDRegione", 0}, {"testo", "TAR"}});
      prova_.Riga("LegameDocFonte", {{"IDDoc", id}, {"IDFnt", fonte}});
    }
    archivio_ = prova_.StatoScritto().PathArchivio;
    prova_.stato.DbArchivio.Close();
  }
  // Appends as a batch does, or writes anew.
  void Esporta(int inizio, bool accoda) const {
    StatoGlobale stato;
    stato.CartellaApplicazione = prova_.cartella.Percorso();
    stato.DbArchivio = OpenDatabase(archivio_);
    stato.DbArchivio.Execute(QStringLiteral("update TabInfo set NumInizio = '%1'").arg(inizio));
    stato.ModoBatch = accoda;
    stato.FileBatch = prova_.cartella.Dump("lexxdump cassazione.A01");
    DialoghiScritti dialoghi;
    if (!accoda) {
      dialoghi.AttendeDomanda("Controllo presenza fonti?", "Esportazione per ISIS", Pulsanti::SiNo,
                              Risposta::No);
      dialoghi.AttendeDomanda("Accodare risultato dell'esportazione?", "Esportazione",
                              Pulsanti::SiNo, Risposta::No);
    }
    EsportaAscii(stato, dialoghi, kEsportaCassazione);
  }
  [[nodiscard]] std::vector<std::string> Scritti() const {
    std::vector<std::string> file;
    for (const char* nome :
         {"lexxdump cassazione.A01", "errori.A01", "errClasse.A01", "errFonte.A01"}) {
      file.push_back(prova_.Dump(nome));
    }
    return file;
  }

  DocumentiDiProva prova_;
  QString archivio_;
};

TEST_P(UccisioniUscite, LeaveTheFilesOfWholeRuns) {
  const bool accoda = GetParam();
  const auto prova = [&](int inizio) {
    for (const QString& nome : InDump(prova_.cartella)) QFile::remove(prova_.cartella.Dump(nome));
    Esporta(inizio, accoda);
    return Scritti();
  };
  const auto seconda = prova(5012);
  const auto prima = prova(12);
  for (size_t i = 0; i < prima.size(); ++i) ASSERT_NE(prima[i], seconda[i]) << i;
  std::minstd_rand sorte(20'011);
  std::uniform_int_distribution<int> ritardo(0, kMassimoRitardoMicrosecondi);
  std::vector<std::string> attesi = prima;
  int cambi = 0;
  for (int i = 0; i < kUccisioni && !HasFailure(); ++i) {
    const pid_t figlio = Figlio([&] {
      for (int inizio = 5012;; inizio = 5024 - inizio) Esporta(inizio, accoda);
    });
    std::this_thread::sleep_for(std::chrono::microseconds(ritardo(sorte)));
    kill(figlio, SIGKILL);
    EXPECT_TRUE(Ucciso(figlio));
    RipristinaUscite(prova_.cartella.Percorso() + "/dump");
    EXPECT_EQ(InDump(prova_.cartella).size(), 4) << InDump(prova_.cartella).join('|').toStdString();
    const auto scritti = Scritti();
    // From where it stood, as many whole runs as the child came to.
    auto possibili = attesi;
    for (int giri = 0; scritti != possibili && giri < 100; ++giri) {
      const auto& giro = giri % 2 == 0 ? seconda : prima;
      for (size_t f = 0; f < giro.size(); ++f) {
        possibili[f] = accoda ? possibili[f] + giro[f] : giro[f];
      }
    }
    EXPECT_TRUE(scritti == possibili) << "kill " << i;
    cambi += scritti != attesi ? 1 : 0;
    attesi = scritti;
  }
  EXPECT_GT(cambi, 0) << "no run came to its end";
}

INSTANTIATE_TEST_SUITE_P(Exports, UccisioniUscite, testing::Bool(),
                         [](const auto& caso) { return caso.param ? "Appended" : "Anew"; });

// Killed in the middle of a file that stands alone, as a print or an extraction.
TEST(UccisioneFileTesto, LeavesWhatWasThere) {
  const CartellaDiProva cartella;
  const auto uccidi = [&](const char* nome, Apertura apertura) {
    EXPECT_TRUE(Ucciso(Figlio([&] {
      FileTesto file(cartella.Dump(nome), apertura);
      file.ScriviBlocco(QByteArray(100'000, 'x'));
      (void)raise(SIGKILL);
    })));
  };
  ScriviByte(cartella.Dump("note.A01"), "prima\r\n");
  uccidi("note.A01", Apertura::Scrittura);
  EXPECT_EQ(Byte(cartella.Dump("note.A01")), "prima\r\n");
  uccidi("note.A01", Apertura::Aggiunta);
  EXPECT_EQ(Byte(cartella.Dump("note.A01")).size(), 100'007);
  uccidi("nuovi.A01", Apertura::Aggiunta);
  FileTesto(cartella.Dump("note.A01"), Apertura::Aggiunta).Print("poi");
  EXPECT_EQ(Byte(cartella.Dump("note.A01")), "prima\r\npoi\r\n");
  EXPECT_FALSE(QFile::exists(cartella.Dump("nuovi.A01")));
  // What has taken the place of a torn file meanwhile is left alone.
  uccidi("note.A01", Apertura::Aggiunta);
  QFile::rename(cartella.Dump("note.A01"), cartella.Dump("note.rotto"));
  ScriviByte(cartella.Dump("note.A01"), QByteArray(200, 'y'));
  RipristinaUscite(cartella.Percorso() + "/dump");
  EXPECT_EQ(Byte(cartella.Dump("note.A01")).size(), 200);
}

// Killed at each step of putting two files in place: both are of before until both are complete.
TEST(UccisioneRegistro, FinishesOnlyASetThatWasComplete) {
  for (int passi = 0; passi <= 4; ++passi) {
    const CartellaDiProva cartella;
    const QStringList posti = {cartella.Dump("errori.A01"), cartella.Dump("errFonte.A01")};
    for (const QString& posto : posti) ScriviByte(posto, "prima");
    EXPECT_TRUE(Ucciso(Figlio([&] {
      int passo = 0;
      const auto forse = [&] {
        if (passo++ == passi) (void)raise(SIGKILL);
      };
      RegistroUscite registro(cartella.Percorso() + "/dump");
      FileTesto primo(posti[0], Apertura::Scrittura, &registro);
      FileTesto secondo(posti[1], Apertura::Scrittura, &registro);
      for (FileTesto* file : {&primo, &secondo}) {
        file->ScriviBlocco("dopo");
        file->Close();
        forse();
      }
      registro.Completo();
      forse();
      for (FileTesto* file : {&primo, &secondo}) {
        file->VaAlPosto();
        forse();
      }
    })));
    RipristinaUscite(cartella.Percorso() + "/dump");
    for (const QString& posto : posti)
      EXPECT_EQ(Byte(posto), passi < 2 ? "prima" : "dopo") << passi;
    EXPECT_EQ(InDump(cartella).size(), 2);
  }
}

}  // namespace
}  // namespace torvi
