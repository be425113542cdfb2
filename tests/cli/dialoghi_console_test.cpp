#include "cli/dialoghi_console.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

namespace torvi {
namespace {

TEST(DialoghiConsole, RefusesWhatNoOptionAnswers) {
  QString testo;
  QTextStream uscita(&testo);
  DialoghiConsole dialoghi(uscita);
  dialoghi.Rispondi("Accodare?", Risposta::Si);
  EXPECT_EQ(dialoghi.Domanda("Accodare?", {}, Pulsanti::SiNo), Risposta::Si);
  try {
    static_cast<void>(dialoghi.Domanda("Cancellare?", {}, Pulsanti::SiNo));
    FAIL() << "answered by nobody";
  } catch (const Rifiuto& rifiuto) {
    EXPECT_EQ(rifiuto.domanda, "Cancellare?");
  }
  EXPECT_THROW(static_cast<void>(dialoghi.Immissione({}, {})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliFile({})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ChiediInformazione()), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliFileUscita({}, {}, true)), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ChiediTestoEsteso({})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliDaLista({})), Rifiuto);
  dialoghi.FileUscitaScelto("lexxdump.tot");
  EXPECT_EQ(dialoghi.ScegliFileUscita({}, {}, true), "lexxdump.tot");
}

TEST(DialoghiConsole, SaysOneLineForEachMessageAndShowsNoProgressInAFile) {
  QString testo;
  QTextStream uscita(&testo);
  DialoghiConsole dialoghi(uscita);
  testing::internal::CaptureStderr();
  dialoghi.Attesa(true);
  dialoghi.Avanzamento("Esportazione", 1, 2);
  dialoghi.Messaggio("Prima riga\r\nseconda – già");
  dialoghi.Attesa(false);
  dialoghi.MostraErrori("Errori\r\n");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Prima riga seconda – già\n");
  EXPECT_EQ(testo, "Errori\r\n");
}

// Standard error as a terminal, as long as it lives.
class Terminale {
 public:
  Terminale() : errori_(dup(STDERR_FILENO)), capo_(posix_openpt(O_RDWR | O_NOCTTY)) {
    if (capo_ < 0 || grantpt(capo_) != 0 || unlockpt(capo_) != 0) return;
    schermo_ = open(ptsname(capo_), O_RDWR | O_NOCTTY);
    if (schermo_ >= 0) dup2(schermo_, STDERR_FILENO);
  }
  Terminale(const Terminale&) = delete;
  Terminale& operator=(const Terminale&) = delete;
  ~Terminale() {
    dup2(errori_, STDERR_FILENO);
    for (const int uno : {errori_, capo_, schermo_}) close(uno);
  }
  // Some machines have none to give.
  [[nodiscard]] bool Dato() const { return schermo_ >= 0; }
  // What is written reaches the other end a moment later, and perhaps not at once.
  void Mostra(const std::string& atteso) const {
    std::string scritto;
    pollfd capo = {capo_, POLLIN, 0};
    while (scritto.size() < atteso.size() && poll(&capo, 1, kAttesaMs) == 1) {
      std::array<char, 1000> byte = {};
      scritto.append(byte.data(), static_cast<std::size_t>(read(capo_, byte.data(), byte.size())));
    }
    EXPECT_EQ(scritto, atteso);
  }

 private:
  static constexpr int kAttesaMs = 5000;
  int errori_;
  int capo_;
  int schermo_ = -1;
};

TEST(DialoghiConsole, ShowsHowFarARunHasComeOnATerminal) {
  QString testo;
  QTextStream uscita(&testo);
  DialoghiConsole dialoghi(uscita);
  const Terminale terminale;
  if (!terminale.Dato()) GTEST_SKIP() << "no terminal is to be had on this machine";
  dialoghi.Ambito("B01 (2 di 3): ");
  dialoghi.Avanzamento("Note", 100, 250);
  terminale.Mostra("\rB01 (2 di 3): Note: 100 di 250");
  dialoghi.Avanzamento("Note", 5, 0);  // over the longer line
  terminale.Mostra("\rB01 (2 di 3): Note: 5         ");
  dialoghi.Messaggio("Fine");
  terminale.Mostra("\r                     \rFine\r\n");
}

}  // namespace
}  // namespace torvi
