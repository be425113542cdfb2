#include "report/lotto.h"

#include "archive/esempio.h"
#include "archive/master.h"
#include "consegna_fonti.h"
#include "export/esporta_ascii.h"
#include "report/estrazioni.h"
#include "report/sigle.h"

namespace torvi {
namespace {

// Deliveries L1, L2, L4 and L5 with as many documents as their number says, 100 and 0 for the last
// two; L3 is in the list and has no archive.
class LottoDiConsegne : public ConsegnaFonti {
 protected:
  LottoDiConsegne() {
    for (const auto& [sigla, documenti] :
         {std::pair{"L1", 1}, {"L2", 12}, {"L4", 100}, {"L5", 0}}) {
      stato.DbArchivio =
          cartella.NuovaConsegna(QLatin1String(sigla) + ".mdb",
                                 {.consegna = sigla, .inizio = "7", .centro = "B", .anno = "2003"});
      const UnitaDiScrittura unita(stato.DbArchivio);
      for (int i = 0; i < documenti; ++i) Documento();
      if (documenti > 1) Testo(2, "5", QByteArray("nota di ").append(sigla).constData());
    }
  }
  EsitoLotto Esegue(Lotto lotto, const QByteArray& sigle, AlGuasto alGuasto = AlGuasto::Ferma,
                    const char* nome = "sigle.A03") {
    const QString lista = cartella.Mdb(nome);
    ScriviByte(lista, sigle);
    stato.FileBatch = "di prima";
    dialoghi.AttendeFileUscita(lista, [this] { EXPECT_EQ(stato.FileBatch, ""); });
    EsitoLotto esito = EseguiLotto(stato, dialoghi, lotto, alGuasto);
    EXPECT_EQ(dialoghi.UltimaUscita().join('|'), cartella.Percorso() + "/mdb|sigle.*|");
    EXPECT_TRUE(stato.ModoBatch);
    return esito;
  }
};

const QByteArray kNotaL2 = "Consegna L2\r\n2003B0008 (Record: 2)\r\nnota di L2\r\n\r\n\r\n";
const QByteArray kNotaL4 = "Consegna L4\r\n2003B0008 (Record: 2)\r\nnota di L4\r\n\r\n\r\n";

TEST_F(LottoDiConsegne, AppendsWhatEachDeliveryGives) {
  for (int volta = 1; volta <= 2; ++volta) {  // lists in any kind of line
    EXPECT_TRUE(Esegue(Lotto::Note, volta == 1 ? "L2\r\nL1\r\nL4" : "L2\nL1\rL4\n").riuscito);
    EXPECT_EQ(Dump("note.A03"),
              QByteArray(kNotaL2 + "Consegna L1\r\n\r\n" + kNotaL4).repeated(volta));
  }
  EXPECT_EQ(stato.FileBatch, cartella.Dump("note.A03"));
  EXPECT_EQ(dialoghi.Messaggi().size(), 6);
  EXPECT_EQ(
      dialoghi.Avanzati().mid(0, 3).join('|'),
      "L2 (1 di 3): Estrazione note|L1 (2 di 3): Estrazione note|L4 (3 di 3): Estrazione note");
  EXPECT_FALSE(stato.DbArchivio.Aperto());
  // The mode stays: what is extracted alone goes behind the rest.
  stato.DbArchivio = OpenDatabase(cartella.Mdb("L1.mdb"));
  const QByteArray prima = Dump("note.A03");
  EstraiNote(stato, dialoghi);
  EXPECT_EQ(Dump("note.A03"), prima + "Consegna L1\r\n\r\n");
  stato.FileBatch = cartella.Mdb("sigle.A03");  // as the form of the lists leaves it
  EXPECT_TRUE(ErroreDi([&] { EstraiNote(stato, dialoghi); }).contains("lista di consegne"));
  EXPECT_EQ(Byte(stato.FileBatch), "L2\nL1\rL4\n");
}

TEST_F(LottoDiConsegne, AListIsReadHoweverItWasMade) {
  const std::pair<QByteArray, const char*> kCasi[] = {
      {"L1\r\n \r\n\r\nL2", "L1| ||L2"},
      {"L1\r\nL2\r\n\x1a", "L1|L2"},
      {"L1\r\nL2\x1aL3\r\nL4", "L1|L2"},
      {"\xef\xbb\xbfL1\r\nPerch\xc3\xa9\r\n", "L1|Perché"},
      {"Perch\xe9\r\n", "Perché"},
      {"L1\r\n" + QByteArray(256, 'x') + "\r\n", nullptr},
      {"L1\r\n" + QByteArray(20'000'000, 'x'), nullptr},
  };
  const QString lista = cartella.Mdb("sigle.A03");
  for (const auto& [byte, sigle] : kCasi) {
    ScriviByte(lista, byte);
    if (sigle != nullptr) {
      EXPECT_EQ(LeggiSigle(lista).join('|').toStdString(), sigle);
    } else {
      EXPECT_EQ(ErroreDi([&] { (void)LeggiSigle(lista); }),
                "5 La riga 2 di " + lista + " ha più di 255 caratteri");
    }
  }
}

TEST_F(LottoDiConsegne, StopsAtTheFirstDeliveryThatFails) {
  const EsitoLotto esito = Esegue(Lotto::Note, "L2\r\nL3\r\nL4\r\n");
  EXPECT_FALSE(esito.riuscito);
  EXPECT_EQ(esito.fallite, QStringList{"L3"});
  EXPECT_EQ(esito.fatte, 1);
  EXPECT_EQ(Dump("note.A03"), kNotaL2);
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("3024 --> "));
  EXPECT_FALSE(Esegue(Lotto::Note, "\r\nL2\r\n").riuscito);  // a blank line is a code too
  EXPECT_TRUE(dialoghi.UltimoMessaggio().startsWith("3024 --> "));
  EXPECT_EQ(Dump("note.A03"), kNotaL2);
}

TEST_F(LottoDiConsegne, GoesOnWhereToldAndTakesBackTheHalves) {
  {  // fails at its second document, behind its first lines
    const Database rotta = OpenDatabase(cartella.Mdb("L4.mdb"));
    rotta.Execute("update TabTesto set testo = null");
  }
  ScriviByte(cartella.Dump("note.A03"), "di prima\r\n");
  const EsitoLotto esito =
      Esegue(Lotto::Note, "L1\r\nL3\r\nL4\r\nL2\r\nL5\r\n", AlGuasto::Prosegui);
  EXPECT_FALSE(esito.riuscito);
  EXPECT_EQ(esito.fallite.join('|'), "L3|L4");
  EXPECT_EQ(esito.fatte, 3);
  EXPECT_EQ(Dump("note.A03"), "di prima\r\nConsegna L1\r\n\r\n" + kNotaL2 + "Consegna L5\r\n\r\n");
  EXPECT_TRUE(dialoghi.Messaggi().at(1).startsWith("Consegna L3: 3024 --> "));
  EXPECT_TRUE(dialoghi.Messaggi().at(2).startsWith("Consegna L4: 94 --> "));
}

TEST_F(LottoDiConsegne, NamesABlankLineAndTakesBackWhatAnExportFound) {
  ScriviByte(cartella.Dump("errori.A03"), "di prima\r\n");
  const EsitoLotto esito = Esegue(Lotto::Isis, "L5\r\n\r\n", AlGuasto::Prosegui);
  EXPECT_EQ(esito.fallite.join('|'), "L5|(riga vuota)");
  EXPECT_TRUE(dialoghi.Messaggi().at(0).startsWith("Consegna L5: 3021 --> "));
  EXPECT_TRUE(dialoghi.Messaggi().at(1).startsWith("Consegna (riga vuota): 3024 --> "));
  EXPECT_EQ(Dump("errori.A03"), "di prima\r\n");
  EXPECT_EQ(Dump("errClasse.A03") + Dump("errFonte.A03"), "");
}

// What is read ahead of its turn must be of the right delivery, and what cannot be must wait for
// it.
TEST_F(LottoDiConsegne, AnExportGivesWhatEachDeliveryGivesAlone) {
  const QString master = cartella.Mdb("master.mdb");
  CreaMaster(master);
  CreaCatalogo(cartella.Mdb("catalogo norme.mdb"));
  for (const auto& [nome, documenti] : {std::pair{"E1.mdb", 3}, {"E2.mdb", 9}, {"E3.mdb", 6}}) {
    CreaEsempio(cartella.Mdb(nome), master, documenti);
  }
  // The same keys stand for other things.
  const Database seconda = OpenDatabase(cartella.Mdb("E2.mdb"));
  for (const char* cambio : {"update TabResponsabilita set PrimoElemento = \"Altri\"",
                             "update [TabClasse2000-S] set descrizione = \"altra\"",
                             "update TabRivista set TitoloRivista = \"Altra\""}) {
    seconda.Execute(cambio);
  }
  ScriviByte(cartella.Mdb("E4.mdb"), "non è un archivio");
  const auto scritti = [this] {
    QByteArray tutti;
    for (const char* nome : {"lexxdump isis.A03", "errori.A03", "errClasse.A03", "errFonte.A03"}) {
      tutti += Dump(nome);
      QFile::remove(cartella.Dump(nome));
    }
    return tutti;
  };
  const EsitoLotto esito =
      Esegue(Lotto::Isis, "E1\r\nE4\r\nE2\r\nE2\r\nL3\r\nE3\r\n", AlGuasto::Prosegui);
  EXPECT_EQ(esito.fallite.join('|'), "E4|L3");
  const QByteArray insieme = scritti();
  for (const char* nome : {"E1.mdb", "E2.mdb", "E2.mdb", "E3.mdb"}) {
    stato.DbArchivio = OpenDatabase(cartella.Mdb(nome));
    EsportaAscii(stato, dialoghi, kEsportaIsis);
  }
  EXPECT_EQ(insieme, scritti());
  EXPECT_TRUE(insieme.contains("altra") && insieme.contains("Altri"));
}

TEST_F(LottoDiConsegne, CountsDocuments) {
  OpenDatabase(cartella.Mdb("L1.mdb")).Execute("update TabInfo set Consegna = \"L%3\"");
  ScriviByte(cartella.Dump("conteggio.igl"), "di prima\r\n");
  // The last three characters of the path, whatever the extension.
  EXPECT_TRUE(
      Esegue(Lotto::Conteggio, "L1\r\nL2\r\nL4\r\nL5\r\n", AlGuasto::Ferma, "sigle.sigl").riuscito);
  EXPECT_EQ(Dump("conteggio.igl").toStdString(),
            "Consegna L%3:   1 documenti da 2003B0007 a 2003B0007\r\n"
            "Consegna L2:  12 documenti da 2003B0007 a 2003B0018\r\n"
            "Consegna L4: 100 documenti da 2003B0007 a 2003B0106\r\n"
            "Consegna L5:   0 documenti da 2003B0007 a 2003B0006\r\n"
            "113 documenti in 4 consegne\r\n");
  EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
}

TEST_F(LottoDiConsegne, EveryOperationHasItsFile) {
  const std::pair<Lotto, const char*> kFile[] = {{Lotto::Celex, "StampaHTML A03.htm"},
                                                 {Lotto::Hudoc, "StampaHTML_GEI A03.htm"},
                                                 {Lotto::Note, "note.A03"},
                                                 {Lotto::Nuovi, "nuovi.A03"},
                                                 {Lotto::Conteggio, "conteggio.A03"}};
  for (const auto& [lotto, file] : kFile) {
    EXPECT_TRUE(Esegue(lotto, "L1\r\nL5\r\n").riuscito) << file;
    EXPECT_FALSE(Dump(file).isEmpty()) << file;
    EXPECT_EQ(stato.FileBatch, cartella.Dump(file));
  }
  const std::pair<Lotto, const char*> kFormati[] = {{Lotto::Isis, "lexxdump isis.A03"},
                                                    {Lotto::Cassazione, "lexxdump cassazione.A03"},
                                                    {Lotto::Storico, "lexxdump storico.A03"}};
  for (const auto& [lotto, file] : kFormati) {
    EXPECT_FALSE(Esegue(lotto, "L5\r\n").riuscito);  // nothing to export
    EXPECT_EQ(stato.FileBatch, cartella.Dump(file));
  }
  dialoghi.AttendeFileUscita({});
  EXPECT_EQ(EseguiLotto(stato, dialoghi, Lotto::Isis).consegne, 0);
  stato.DbArchivio = OpenDatabase(cartella.Mdb("L1.mdb"));
  EXPECT_EQ(stato.DbArchivio.OpenRecordset("TabInfo").Fields("CELEX").Testo(), "1");
  EXPECT_TRUE(stato.DbArchivio.OpenRecordset("TabInfo").Fields("Storico").Nullo());
}

}  // namespace
}  // namespace torvi
