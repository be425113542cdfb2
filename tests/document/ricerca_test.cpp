#include "document/ricerca.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "document/archivio_di_prova.h"

namespace torvi {
namespace {

const QString kDaPersona =
    "FROM TabResponsabilita INNER JOIN (TabDocumento INNER JOIN LegameDocResp ON "
    "TabDocumento.IDDocumento = LegameDocResp.IDDoc) ON TabResponsabilita.IDResponsabilita = "
    "LegameDocResp.IDResponsabilita WHERE LegameDocResp.FlagAutore = ";
const QString kDaTesto =
    "FROM TabTesto INNER JOIN (TabDocumento INNER JOIN LegameDocTesto ON TabDocumento.IDDocumento "
    "= LegameDocTesto.IDDoc) ON TabTesto.IDTesto = LegameDocTesto.IDTesto WHERE "
    "(LegameDocTesto.Tipo='";
const QString kDaFonte =
    "FROM TabFonte INNER JOIN (TabDocumento INNER JOIN LegameDocFonte ON TabDocumento.IDDocumento "
    "= LegameDocFonte.IDDoc) ON TabFonte.IDFonte = LegameDocFonte.IDFnt ";
// With the letter of the classification in the place of %1.
const QString kDaClasse =
    "FROM [TabClasse2000-%1] INNER JOIN (TabClasse2000 INNER JOIN (TabDocumento INNER JOIN "
    "LegameDocClass ON TabDocumento.IDDocumento = LegameDocClass.IDDoc) ON "
    "TabClasse2000.IDClasse2000 = LegameDocClass.IDClass) ON [TabClasse2000-%1].IDClasse%1 = "
    "TabClasse2000.[IDClasse2000-%1]WHERE [TabClasse2000-%1].Codice%1";

const CampoRicerca& Campo(const QString& voce) {
  const auto campo = std::ranges::find_if(
      CampiRicerca(), [&](const auto& uno) { return voce == QStringView(uno.voce); });
  if (campo == CampiRicerca().end()) throw std::logic_error(voce.toStdString());
  return *campo;
}

TEST(Ricerca, EachFieldHasItsStatement) {
  const std::pair<QString, QString> casi[] = {
      {"CPer",
       "FROM TabRivista INNER JOIN (TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = "
       "TabDocumento.IDRifBibl) ON TabRivista.IDRivista = TabRifBibl.IDRivista WHERE "
       "TabRivista.CPER = 'x'"},
      {"Data pubblicazione",
       "FROM TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl "
       "WHERE TabRifBibl.Data = 'x'"},
      {"Fascicolo",
       "FROM TabRifBibl INNER JOIN TabDocumento ON TabRifBibl.IDRifBibl = TabDocumento.IDRifBibl "
       "WHERE TabRifBibl.Fascicolo = 'x'"},
      {"Autore - 1° elemento (cognome)",
       kDaPersona + "True and TabResponsabilita.PrimoElemento = 'x'"},
      {"Autore - 2° elemento (nome)",
       kDaPersona + "True and TabResponsabilita.SecondoElemento = 'x'"},
      {"Curatore - 1° elemento (cognome)",
       kDaPersona + "False and TabResponsabilita.PrimoElemento = 'x'"},
      {"Curatore - 2° elemento (nome)",
       kDaPersona + "False and TabResponsabilita.SecondoElemento = 'x'"},
      {"Titolo", kDaTesto + "0') AND (TabTesto.Testo = 'x')"},
      {"Riassunto", kDaTesto + "1') AND (TabTesto.Testo = 'x')"},
      {"Sommario", kDaTesto + "2') AND (TabTesto.Testo = 'x')"},
      {"In tema di", kDaTesto + "7') AND (TabTesto.Testo = 'x')"},
      {"Nota", kDaTesto + "4') AND (TabTesto.Testo = 'x')"},
      {"Fonte (testo)", kDaFonte + "Where TabFonte.testo = 'x'"},
      {"Fonte (TP)", kDaFonte + "WHERE TabFonte.TP = 'x'"},
      {"Classificazione sistematico (codice)", QString(kDaClasse).replace("%1", "S") + " = 'x'"},
      {"Classificazione descrittore (codice)", QString(kDaClasse).replace("%1", "D") + " = 'x'"}};
  ArchivioDiProva prova;
  ASSERT_EQ(CampiRicerca().size(), std::size(casi));
  for (std::size_t i = 0; i < std::size(casi); ++i) {
    const auto& [voce, dopo] = casi[i];
    EXPECT_EQ(QStringView(CampiRicerca()[i].voce), voce);
    const QString istruzione = IstruzioneRicerca(Campo(voce), ModoCampo::Intero, "x");
    const QString prima =
        voce == "Fonte (testo)" ? "SELECT distinct TabDocumento.* " : "SELECT TabDocumento.* ";
    const QString attesa = prima + dopo + " order by TabDocumento.IDDocumento";
    EXPECT_EQ(istruzione.toStdString(), attesa.toStdString());
    EXPECT_TRUE(prova.stato.DbArchivio.OpenRecordset(istruzione).Eof()) << voce.toStdString();
  }
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
