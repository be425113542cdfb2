#include "document/ricerca.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "comune/tavole.h"
#include "document/archivio_di_prova.h"

namespace torvi {
namespace {

const CampoRicerca& Campo(const QString& voce) {
  const auto campo = std::ranges::find_if(
      CampiRicerca(), [&](const auto& uno) { return voce == QStringView(uno.voce); });
  if (campo == CampiRicerca().end()) throw std::logic_error(voce.toStdString());
  return *campo;
}

TEST(Ricerca, EachFieldHasItsStatement) {
  ArchivioDiProva prova;
  QStringList righe;
  for (const CampoRicerca& campo : CampiRicerca()) {
    const QString istruzione = IstruzioneRicerca(campo, ModoCampo::Intero, "x");
    EXPECT_TRUE(prova.stato.DbArchivio.OpenRecordset(istruzione).Eof());
    righe += QString::fromUtf16(campo.voce) + "\t" + istruzione + "\n";
  }
  EXPECT_EQ(righe.join("").toStdString(), Dati("istruzioni_ricerca.txt"));
}

TEST(Ricerca, WordsBecomeTheirCondition) {
  const QString colonna = "TabTesto.Testo";
  for (const auto& [modo, parole, condizione] :
       {std::tuple{ModoCampo::Intero, "l'a  b", "@ = 'l''a  b'"},
        std::tuple{ModoCampo::Sequenza, "l'a  b", "@ like '*l''a  b*'"},
        std::tuple{ModoCampo::Tutte, "l'a  b", "@ like '*l''a*' AND @ like '**' AND @ like '*b*'"},
        std::tuple{ModoCampo::AlmenoUna, "a ", "@ like '*a*' OR @ like '**'"}}) {
    EXPECT_TRUE(IstruzioneRicerca(Campo("Titolo"), modo, parole)
                    .contains("(" + QString(condizione).replace('@', colonna) + ") order"))
        << condizione;
  }
}

// Document 1 has D'Amico as its author and "Gruppo di studio" as its curator; document 2 has no
// text and nobody.
TEST(Ricerca, FindsWhatTheStatementSays) {
  ArchivioDiProva prova;
  prova.Metti("TabDocumento", {{"IDRifBibl", 1}});
  const qint64 titolo = prova.Metti("TabTesto", {{"testo", "Sull'usura"}});
  prova.Metti("LegameDocTesto", {{"IDDoc", 3}, {"IDTesto", titolo}, {"Tipo", "0"}});
  const QString cognome = "Autore - 1° elemento (cognome)";
  for (const auto& [voce, modo, parole, trovati] :
       {std::tuple{QString("Titolo"), ModoCampo::Intero, "SULL'usura", "3"},
        std::tuple{QString("Titolo"), ModoCampo::Intero, "testo ?", ""},
        std::tuple{QString("Titolo"), ModoCampo::Sequenza, "t*to ?", "1"},
        std::tuple{QString("Titolo"), ModoCampo::Tutte, "0  test", "1"},
        std::tuple{QString("Titolo"), ModoCampo::AlmenoUna, "zzz ", "1 3"},
        std::tuple{QString("Data pubblicazione"), ModoCampo::Intero, "03/00/2001", "1 3"},
        std::tuple{cognome, ModoCampo::AlmenoUna, "d'amico zzz", "1"},
        std::tuple{cognome, ModoCampo::AlmenoUna, "gruppo zzz", ""},
        // The test of the author binds the first word alone.
        std::tuple{cognome, ModoCampo::AlmenoUna, "d'amico gruppo", "1 1"}}) {
    RisultatoRicerca risultato;
    EseguiRicerca(prova.stato, prova.dialoghi, &Campo(voce), modo, parole, risultato);
    QStringList numeri;
    for (const qint16 numero : prova.stato.ListaRicerca) numeri += QString::number(numero);
    EXPECT_EQ(numeri.join(' '), trovati) << parole;
    EXPECT_EQ(risultato.cmdInterroga, !numeri.isEmpty());
    EXPECT_EQ(risultato.lstRisultato.size(), numeri.size());
  }
  EXPECT_EQ(prova.dialoghi.Messaggi(),
            QStringList(2, "Non esistono record che soddisfano la ricerca impostata"));
}

TEST(Ricerca, WhatFailsLeavesTheStepsDone) {
  ArchivioDiProva prova;
  RisultatoRicerca risultato;
  const auto cerca = [&](const char* voce, const char* parole) {
    return NumeroErrore([&] {
      EseguiRicerca(prova.stato, prova.dialoghi, &Campo(voce), ModoCampo::AlmenoUna, parole,
                    risultato);
    });
  };
  EXPECT_EQ(cerca("Fascicolo", ""), 0);
  EXPECT_EQ(prova.dialoghi.Messaggi(), QStringList("Informazioni mancanti!"));
  EXPECT_EQ(cerca("Fascicolo", "3"), 0);
  EXPECT_EQ(risultato.lstRisultato, QStringList("1 --> 2001A0012 ?"));
  EXPECT_EQ(prova.stato.IDDocumentoScelto, "1");

  prova.Metti("TabDocumento", {{"IDDocumento", 32768}, {"IDRifBibl", 1}});
  EXPECT_EQ(cerca("Fascicolo", "3 x"), 6);
  EXPECT_EQ(risultato.lstRisultato.last(), "32768 --> 2001A32779 ?");
  EXPECT_EQ(prova.stato.ListaRicerca, std::vector<qint16>{1});
  EXPECT_TRUE(prova.stato.SqlRicerca.contains("*x*"));

  prova.stato.DbArchivio.Execute("delete * from TabInfo");
  EXPECT_EQ(cerca("Fascicolo", "y"), 3021);
  EXPECT_TRUE(prova.stato.SqlRicerca.contains("*x*"));
  EXPECT_EQ(risultato.lstRisultato.size(), 2);
}

}  // namespace
}  // namespace torvi
