#include "report/consegna_da_stampare.h"

#include <gtest/gtest.h>

namespace torvi {

ConsegnaDaStampare::ConsegnaDaStampare() {
  ScriviByte(cartella.Percorso() + "/Testata New.rtf",
             "{\\rtf1 Consegna xxx,\r\n consegna XXX\r\n");
  Riga("TabRivista", {{"CPER", "AAB"}, {"TitoloRivista", "<A> & \"B\""}, {"IDPeriodicita", 9}});
  Completo();
  Vecchio();
  SenzaRiferimento();
  SenzaData();
  Futuro();
}

void ConsegnaDaStampare::Fonte(qint64 idDoc, const char* tp, const char* testo) const {
  const qint64 id = Riga("TabFonte", {{"TP", tp}, {"testo", testo}});
  Riga("LegameDocFonte", {{"IDDoc", idDoc}, {"IDFnt", id}});
}

void ConsegnaDaStampare::Completo() const {
  const qint64 id = Documento({{"IDRifBibl", Riferimento({{"Serie", "2"},
                                                          {"Annata", "47"},
                                                          {"Data", "07/03/2001"},
                                                          {"Fascicolo", "3-4-5"},
                                                          {"Supplemento", "1"},
                                                          {"Parte", "I"},
                                                          {"Sezione", "II"},
                                                          {"Volume", "12"}})},
                               {"pagine", "20-10"},
                               {"td", "02"},
                               {"TAbs", "600"},
                               {"LIN", "01"},
                               {"lo", Campo()},
                               {"lr", "05"}});
  Responsabile(id, " Rossi", "Mario ", false);
  Responsabile(id, "Corte dei conti ", Campo());
  static constexpr std::pair<const char*, const char*> kTesti[] = {
      {"5", "nota {privata}"}, {"6", "nota"},
      {"8", "In English"},     {"7", "tema"},
      {"2", "1\\2\\\\3"},      {"1", "Così\r\n“è” – Δ"},
      {"4", "Nota a Cass."},   {"3", "La [traduzione]"},
      {"0", "Titolo \\par"},   {"0", "un secondo che non conta"}};
  for (const auto& [tipo, testo] : kTesti) Testo(id, tipo, QString::fromUtf8(testo));
  static constexpr std::pair<const char*, const char*> kFonti[] = {
      {"LIO", "l. 241"}, {"NIT", "tratt."}, {"NIC", "reg. * 1"}, {"GEC", "Corte g."},
      {"NS", "st. a"},   {"NSX", "st. b"},  {"GS", "st. c"},     {"FCC", "can. \\1"}};
  for (const auto& [tp, testo] : kFonti) Fonte(id, tp, testo);
  Coppia(id, {{"IDClasse2000-D", 1}});
  Coppia(id, {{"Classe2000-D", "libero"}, {"Check", "2"}});
  Coppia(id, {});
}

// Its type has no note, so its translation comes twice.
void ConsegnaDaStampare::Vecchio() const {
  const qint64 id =
      Documento({{"IDRifBibl", Riferimento({{"Data", "00/12/1999"}, {"IDRivista", 2}})},
                 {"pagine", "5"},
                 {"td", "06"}});
  Responsabile(id, "Bianchi", "Anna");
  Testo(id, "0", QStringLiteral("Vecchio"));
  Testo(id, "3", QStringLiteral("Old]"));
  Testo(id, "4", QStringLiteral("non stampata"));
  Codice1999(id, 1);
  Codice1999(id, 2);
}

// It follows the scheme of the document before it.
void ConsegnaDaStampare::SenzaRiferimento() const {
  const qint64 id = Documento({{"IDRifBibl", Campo()}, {"td", "05"}, {"TAbs", "500"}});
  Testo(id, "3", QStringLiteral("una volta"));
  Testo(id, "4", QStringLiteral("non stampata"));
  Testo(id, "7", QStringLiteral("tema"));
  Testo(id, "8", QStringLiteral("English"));
  Coppia(id, {});
}

void ConsegnaDaStampare::SenzaData() const {
  const Campo nullo;
  const qint64 id = Documento({{"IDRifBibl", Riferimento({{"Data", nullo}, {"Fascicolo", nullo}})},
                               {"pagine", nullo},
                               {"td", "08"},
                               {"TAbs", nullo},
                               {"Bib", ""},
                               {"LIN", nullo},
                               {"lr", nullo},
                               {"la", nullo}});
  Testo(id, "4", QStringLiteral("rassegna"));
  Codice1999(id, 2);
}

void ConsegnaDaStampare::Futuro() const {
  const qint64 id =
      Documento({{"IDRifBibl", Riferimento({{"Data", "00/00/2002"}, {"Parte", "II"}})},
                 {"pagine", "9-10"},
                 {"td", "01"},
                 {"TAbs", "800"},
                 {"Bib", "0"}});
  Testo(id, "4", QStringLiteral("non stampata"));
  Testo(id, "7", QStringLiteral("tema"));
  Testo(id, "3", QStringLiteral("Prima]"));
  Testo(id, "3", QStringLiteral("Seconda]"));
}

void ConfrontaConDati(const DocumentiDiProva& prova, const char* nome) {
  QByteArray atteso = Byte(FileProgetto(QStringLiteral("tests/dati/") + QLatin1String(nome)));
  atteso.replace("\n", "\r\n");
  EXPECT_EQ(prova.Dump(nome), atteso.toStdString()) << nome;
}

}  // namespace torvi
