#include "testi/grammatica.h"

#include <gtest/gtest.h>

#include <QSet>

#include "comune/tavole.h"
#include "testi/revisione.h"

namespace torvi {
namespace {

// A rule, a wrong text and what the rule makes of it; "-" for brackets and quotes.
void Correggono(Lingua lingua, const char* tavola) {
  Grammatica nomi(lingua);
  for (const QStringList& caso : LeggiTavola(tavola)) {
    const std::string errato = caso.at(1).toStdString();
    Grammatica grammatica(lingua);
    Revisione revisione(caso.at(1), grammatica);
    int passi = 0;
    for (; revisione.Corrente() && passi < 20; ++passi) {
      const Regola* regola = nomi.RegolaDi(*revisione.Corrente());
      EXPECT_EQ(caso.at(0), regola == nullptr ? "-" : regola->nome) << errato;
      revisione.Sostituisci(revisione.Proposte().value(0));
    }
    EXPECT_LT(passi, 20) << errato;
    EXPECT_EQ(revisione.Testo().toStdString(), caso.at(2).toStdString());
  }
}

void Tacciono(Lingua lingua, const char* tavola) {
  Grammatica grammatica(lingua);
  for (const QStringList& caso : LeggiTavola(tavola)) {
    const QString testo = QString(caso.at(0)).replace("\\r\\n", "\r\n");
    for (const Segnalazione& trovata : grammatica.Segnala(testo)) {
      const Regola* regola = grammatica.RegolaDi(trovata);
      ADD_FAILURE() << testo.toStdString() << "\nat \"" << trovata.testo.toStdString()
                    << "\": " << (regola == nullptr ? "signs" : regola->nome);
    }
  }
}

TEST(Grammatica, EachRuleMendsItsOwnSlip) {
  Correggono(Lingua::Italiano, "grammatica_comuni.txt");
  Correggono(Lingua::Italiano, "grammatica_italiani.txt");
  Correggono(Lingua::Inglese, "grammatica_comuni.txt");
  Correggono(Lingua::Inglese, "grammatica_inglesi.txt");
}

TEST(Grammatica, EveryRuleHasACase) {
  const auto senzaCaso = [](std::span<const Regola> regole, const char* tavola) {
    QSet<QString> nomi;
    for (const Regola& regola : regole) {
      EXPECT_FALSE(nomi.contains(regola.nome)) << regola.nome;
      nomi += regola.nome;
    }
    for (const QStringList& caso : LeggiTavola(tavola)) nomi -= caso.at(0);
    return QStringList(nomi.values()).join('|').toStdString();
  };
  EXPECT_EQ(senzaCaso(RegoleComuni(), "grammatica_comuni.txt"), "");
  EXPECT_EQ(senzaCaso(RegoleItaliane(), "grammatica_italiani.txt"), "");
  EXPECT_EQ(senzaCaso(RegoleInglesi(), "grammatica_inglesi.txt"), "");
}

TEST(Grammatica, FindsNothingInCorrectTexts) {
  Tacciono(Lingua::Italiano, "grammatica_italiano_giusto.txt");
  Tacciono(Lingua::Inglese, "grammatica_inglese_giusto.txt");
}

}  // namespace
}  // namespace torvi
