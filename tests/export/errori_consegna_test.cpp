#include "export/errori_consegna.h"

#include <gtest/gtest.h>

#include <QDir>

#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"

namespace torvi {
namespace {

struct Vista {
  const VoceErrori& voce;
  const char* marcatore;
  const char* file;
  const char* intestazione;
  const char* nessuno;
};

const Vista kViste[] = {
    {kErroriGenerici, "VisualizzaErroriGenerici", "errori.A01", "Errori generici",
     "Non ci sono errori!"},
    {kErroriClasse, "VisualizzaErroriClasse", "errClasse.A01", "Errori di classificazione",
     "Non ci sono errori di classificazione!"},
    {kErroriFonti, "VisualizzaErroriFonti", "ERRFONTE.A01", "Errori nelle fonti",
     "Non ci sono errori nelle fonti!"},
};

class ErroriConsegnaTest : public testing::Test {
 protected:
  // What the operator saw: each word as its kind and text, and the marker's value behind.
  std::string Vedi(const Vista& vista) {
    DialoghiScritti dialoghi;
    motivo = VisualizzaErrori(stato, dialoghi, vista.voce);
    QString visto;
    for (const Parola& parola : dialoghi.Parole()) {
      const bool finestra = parola.genere == Parola::Genere::Errori;
      visto += (finestra ? "W:" : "M:") + parola.titolo + parola.testo + "|";
      if (finestra) {
        EXPECT_EQ(parola.testo, stato.TestoErrori);
      }
    }
    const Recordset info = stato.DbArchivio.OpenRecordset("TabInfo");
    visto += info.Fields(vista.marcatore).TestoOVuoto();
    return visto.toStdString();
  }
  void Scrivi(const Vista& vista, const char* testo) const {
    ScriviByte(cartella.Dump(vista.file), testo);
  }

  QString motivo;
  CartellaDiProva cartella;
  StatoGlobale stato = cartella.StatoConConsegna();
};

TEST_F(ErroriConsegnaTest, EachFileIsShownUnderItsHeading) {
  for (const Vista& vista : kViste) {
    const std::string intestazione = std::string("W:") + vista.intestazione + "\r\n\r\n";
    EXPECT_EQ(Vedi(vista),
              "M:Prima di usare questa funzione occorre utilizzare una delle tre sottovoci del "
              "sottomenù Formato ASCII di Esporta|1");
    Scrivi(vista, "\r\n");
    EXPECT_EQ(Vedi(vista), std::string("M:") + vista.nessuno + "|1");
    Scrivi(vista, "");
    EXPECT_EQ(Vedi(vista), intestazione + "|1");
    Scrivi(vista, "Citt\xE0 a\r\nb\r\n\r\n");
    EXPECT_EQ(Vedi(vista), intestazione + "Citt\xC3\xA0 a\r\nb\r\n\r\n|1");
    Scrivi(vista, "\r\n\r\n");
    EXPECT_EQ(Vedi(vista), intestazione + "\r\n\r\n|1");
  }
}

TEST_F(ErroriConsegnaTest, OtherFailuresEndInSilence) {
  ASSERT_TRUE(QDir(cartella.Percorso()).mkpath("dump/errori.A01"));
  EXPECT_EQ(Vedi(kViste[0]), "1");
  EXPECT_EQ(motivo, "Errore di accesso al percorso o al file: " + cartella.Dump("errori.A01"));
  stato.DbArchivio.Execute("delete * from TabInfo");
  DialoghiScritti dialoghi;
  VisualizzaErrori(stato, dialoghi, kErroriGenerici);
  EXPECT_TRUE(dialoghi.Parole().isEmpty());
}

}  // namespace
}  // namespace torvi
