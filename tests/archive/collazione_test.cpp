#include "archive/collazione.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <string>
#include <vector>

#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

using namespace std::string_literals;

int Segno(int valore) { return (valore > 0) - (valore < 0); }

TEST(Collazione, HaLOrdineDegliArchiviAutentici) {
  std::vector<std::pair<std::string, std::string>> testi;
  const QJsonObject radice = QJsonDocument::fromJson(Byte(FileGenuino("chiavi testo.keys.json"))).object();
  for (const auto& voce : radice["testo"].toArray()) {
    const QJsonObject riga = voce.toObject();
    if (riga["testo"].isNull()) continue;
    const QByteArray chiave = QByteArray::fromHex(riga["key"].toString().toLatin1());
    testi.emplace_back(riga["testo"].toString().toStdString(), chiave.toStdString());
  }
  ASSERT_GT(testi.size(), 1000U);
  for (const auto& [testoA, chiaveA] : testi) {
    for (const auto& [testoB, chiaveB] : testi) {
      ASSERT_EQ(Segno(ConfrontaItaliano(testoA, testoB)), Segno(chiaveA.compare(chiaveB)))
          << "\"" << testoA << "\" \"" << testoB << "\"";
    }
  }
}

TEST(Collazione, OrdinaLettereAccentiESegni) {
  // Each line comes before the next; the texts of a line are equal.
  const std::vector<std::vector<std::string>> ordine = {
      {"", " ", "   "},
      {"\x01"},
      {"'"},
      {"-"},
      {"--"},
      {"  a"},
      {"\t"},
      {"\n"},
      {"(a)"},
      {"2"},
      {"a", "A", "a  "},
      {"-a"},
      {"a'"},
      {"ª"},
      {"á", "Á", "a\u0301"},
      {"à", "À", "a\u0300", "a\u0301\u0300"},
      {"a b"},
      {"a1"},
      {"aa"},
      {"ab"},
      {"a'b"},
      {"a-b"},
      {"àb"},
      {"àb-"},
      {"abc"},
      {"ae", "æ", "Æ", "AE "},
      {"a-e"},
      {"aé", "æ\u0301"},
      {"c"},
      {"č", "Č"},
      {"la"},
      {"l-a"},
      {"là"},
      {"o"},
      {"œ", "Œ", "oe"},
      {"ss", "ß"},
      {"ssa"},
      {"ÿ", "Ÿ"},
      {"z"},
      {"αβγ", "ΑΒΓ"},
      {"москва", "Москва"},
      {"中"},
      {"\xC3"},
      {"\xE9"s},
      {"\xE9\xE8"s},
      {"\xFF"s},
  };
  for (std::size_t i = 0; i < ordine.size(); ++i) {
    for (std::size_t j = 0; j < ordine.size(); ++j) {
      for (const std::string& a : ordine[i]) {
        for (const std::string& b : ordine[j]) {
          EXPECT_EQ(Segno(ConfrontaItaliano(a, b)),
                    Segno(static_cast<int>(i) - static_cast<int>(j)))
              << "\"" << a << "\" \"" << b << "\"";
        }
      }
    }
  }
}

// An index that meets an order which contradicts itself loses rows.
TEST(Collazione, NonSiContraddice) {
  const std::vector<std::string> pezzi = {"a", "A",      "à",     "-", "'", " ",   "æ",
                                          "e", "\u0300", "\xC3"s, "я", "Я", "\0"s, "\u0085"};
  std::vector<std::string> testi = {""};
  for (std::size_t inizio = 0, giro = 0; giro < 3; ++giro) {
    const std::size_t fine = testi.size();
    for (; inizio < fine; ++inizio) {
      for (const std::string& pezzo : pezzi) testi.push_back(testi[inizio] + pezzo);
    }
  }
  std::stable_sort(testi.begin(), testi.end(), [](const std::string& a, const std::string& b) {
    return ConfrontaItaliano(a, b) < 0;
  });
  for (std::size_t i = 0; i < testi.size(); ++i) {
    const bool nuovo = i > 0 && ConfrontaItaliano(testi[i - 1], testi[i]) < 0;
    for (std::size_t j = 0; j < i; ++j) {
      const int esito = ConfrontaItaliano(testi[j], testi[i]);
      ASSERT_EQ(esito, -ConfrontaItaliano(testi[i], testi[j])) << testi[i] << '|' << testi[j];
      ASSERT_TRUE(nuovo ? esito < 0 : esito <= 0) << testi[i] << '|' << testi[j];
    }
  }
}

TEST(Somiglia, IntendeICaratteriJolly) {
  struct Caso {
    const char* testo;
    const char* modello;
    bool atteso;
  };
  const std::vector<Caso> casi = {
      {"Tutela dell'AMBIENTE", "*ambiente*", true},
      {"Tutela dell'ambiente", "ambiente", false},
      {"È così", "è COSÌ", true},
      {"e cosi", "è così", false},
      {"05/03/1990", "05/*", true},
      {"05/03/1990", "*/03/*", true},
      {"03/05/1990", "05/*", false},
      {"", "*", true},
      {"", "**", true},
      {"", "?", false},
      {"x", "**", true},
      {"abcabd", "*ab?", true},
      {"abcabd", "a*b*e", false},
      {"aab", "*ab", true},
      {"à", "?", true},
      {"A1", "?#", true},
      {"AB", "?#", false},
      {"b", "[a-c]", true},
      {"D", "[a-c]", false},
      {"d", "[!a-c]", true},
      {"B", "[!A-C]", false},
      {"-", "[a-]", true},
      {"a*b", "a[*]b", true},
      {"axb", "a[*]b", false},
      {"Title [Titolo]", "*]*", true},
      {"Title", "*]*", false},
      {"a[b", "*[b", true},
      {"ab ", "ab", false},
      {"\xE9", "?", true},
  };
  for (const Caso& caso : casi) {
    EXPECT_EQ(SomigliaA(caso.testo, caso.modello), caso.atteso)
        << caso.testo << ' ' << caso.modello;
  }
}

}  // namespace
}  // namespace torvi
