#include "report/estrazioni.h"

#include <algorithm>

#include "archive/schema.h"
#include "consegna_fonti.h"

namespace torvi {
namespace {

using Estrazioni = ConsegnaFonti;

TEST_F(Estrazioni, EachNoteStandsUnderTheNumberOfItsDocument) {
  Testo(Documento("Titolo"), "6", "nota che si esporta");
  Testo(Documento(), "5", R"(Perché?\seconda riga\)");
  Documento();
  Testo(Documento(), "5", "una riga sola");
  const QStringList righe = {
      "2001A0013 (Record: 2)", "Perché?", "seconda riga", "", "", "2001A0015 (Record: 4)",
      "una riga sola",         ""};
  EstraiNote(stato, dialoghi);
  EXPECT_EQ(Dump("note.A01").toStdString(), Righe(righe).toStdString());
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Fine estrazione note ai documenti (consegna A01)");
  InBatch();
  for (int volta = 1; volta <= 2; ++volta) EstraiNote(stato, dialoghi);
  const QStringList consegna = QStringList{"Consegna A01"} + righe + QStringList{""};
  EXPECT_EQ(Dump("comune.lst").toStdString(), Righe(consegna + consegna).toStdString());
}

TEST_F(Estrazioni, WithoutNotesOnlyABatchLeavesLines) {
  EstraiNote(stato, dialoghi);
  EXPECT_EQ(Dump("note.A01"), "");
  Documento("Titolo");
  InBatch();
  EstraiNote(stato, dialoghi);
  EXPECT_EQ(Dump("comune.lst"), "Consegna A01\r\n\r\n");
}

TEST_F(Estrazioni, NewValuesAreListedWithTheirDocuments) {
  // An archive made before new ministries were marked.
  std::vector<Tabella> schema = SchemaArchivio();
  const auto ministeri = std::ranges::find(schema, QString("TabMinistero"), &Tabella::nome);
  std::erase_if(ministeri->colonne, [](const Colonna& una) { return una.nome == "nuovo"; });
  CreaDatabase(cartella.Mdb("vecchio.mdb"), schema);
  stato.DbArchivio = OpenDatabase(cartella.Mdb("vecchio.mdb"));
  Aggiungi(stato.DbArchivio, "TabInfo",
           {{"Consegna", "A01"},
            {"NumInizio", "1"},
            {"IDCentroSpoglio", "A"},
            {"AnnoProduzione", "2001"}});

  const auto nuovo = [this](const char* tabella, const char* colonna, const char* valore,
                            int segno) {
    return Aggiungi(stato.DbArchivio, tabella, {{colonna, valore}, {"nuovo", segno}});
  };
  const qint64 stato1 = nuovo("TabStato", "Stato", "Città del Vaticano", 1);
  const qint64 citta = nuovo("TabCitta", "Citta", "Roma", 0);
  nuovo("TabCitta", "Citta", "Ostia", 1);  // no source uses it
  const qint64 sezione = nuovo("TabSezione", "Sigla", "sez. un.", 1);
  const qint64 autorita = nuovo("TabAutorita", "AutoritaNorm", "Aut. portuale", 1);
  const qint64 amministrazione =
      nuovo("TabAmministrazione", "AmministrazioneNorm", "Amm. forestale", 1);
  const qint64 primo = Documento();
  const qint64 secondo = Documento();
  Fonte(secondo, {{"IDStato", stato1}, {"IDSezione", sezione}});
  Fonte(primo, {{"IDStato", stato1}, {"IDCitta", citta}, {"IDAutorita", autorita}});
  Fonte(primo, {{"IDAmministrazione", amministrazione}});
  EstraiNuovi(stato, dialoghi);
  EXPECT_EQ(Dump("nuovi.A01").toStdString(),
            Righe({"Nuovi inserimenti in tabStato", "Nuovo: Città del Vaticano (2)",
                   "Nuovo: Città del Vaticano (1)", "", "Nuovi inserimenti in tabCitta",
                   "Nessuna novità in tabCitta", "", "Nuovi inserimenti in tabSezione",
                   "Nuovo: sez. un. (2)", "", "Nuovi inserimenti in tabMinistero",
                   "Impossibilità di risultato a causa della struttura non aggiornata "
                   "della tabella",
                   "", "Nuovi inserimenti in tabAmministrzione", "Nuovo: Amm. forestale (1)", "",
                   "Nuovi inserimenti in tabAutorita", "Nuovo: Aut. portuale (1)", ""})
                .toStdString());
  EXPECT_EQ(dialoghi.UltimoMessaggio(), "Fine estrazione nuovi ai documenti (consegna A01)");
}

}  // namespace
}  // namespace torvi
