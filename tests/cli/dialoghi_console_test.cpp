#include "cli/dialoghi_console.h"

#include <gtest/gtest.h>

namespace torvi {
namespace {

TEST(DialoghiConsole, RefusesWhatNoOptionAnswers) {
  QString testo;
  QTextStream uscita(&testo);
  DialoghiConsole dialoghi(uscita);
  dialoghi.Rispondi(QStringLiteral("Accodare?"), Risposta::Si);
  EXPECT_EQ(dialoghi.Domanda(QStringLiteral("Accodare?"), {}, Pulsanti::SiNo), Risposta::Si);
  try {
    static_cast<void>(dialoghi.Domanda(QStringLiteral("Cancellare?"), {}, Pulsanti::SiNo));
    FAIL() << "answered by nobody";
  } catch (const Rifiuto& rifiuto) {
    EXPECT_EQ(rifiuto.domanda, QStringLiteral("Cancellare?"));
  }
  EXPECT_THROW(static_cast<void>(dialoghi.Immissione({}, {})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliFile({})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ChiediInformazione()), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliFileUscita({}, {}, true)), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ChiediTestoEsteso({})), Rifiuto);
  EXPECT_THROW(static_cast<void>(dialoghi.ScegliDaLista({})), Rifiuto);
  dialoghi.FileUscitaScelto(QStringLiteral("lexxdump.tot"));
  EXPECT_EQ(dialoghi.ScegliFileUscita({}, {}, true), QStringLiteral("lexxdump.tot"));
}

TEST(DialoghiConsole, SaysOneLineForEachMessageAndShowsNoProgressInAFile) {
  QString testo;
  QTextStream uscita(&testo);
  DialoghiConsole dialoghi(uscita);
  testing::internal::CaptureStderr();
  dialoghi.Attesa(true);
  dialoghi.Avanzamento(QStringLiteral("Esportazione"), 1, 2);
  dialoghi.Messaggio(QStringLiteral("Prima riga\r\nseconda – già"));
  dialoghi.Attesa(false);
  dialoghi.MostraErrori(QStringLiteral("Errori\r\n"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Prima riga seconda – già\n");
  EXPECT_EQ(testo, QStringLiteral("Errori\r\n"));
}

}  // namespace
}  // namespace torvi
