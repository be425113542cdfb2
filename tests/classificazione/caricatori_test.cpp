#include "classificazione/caricatori.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "archive/schema.h"
#include "comune/cartella_di_prova.h"
#include "comune/dialoghi_scritti.h"
#include "comune/file_limitati.h"
#include "export/codepagina.h"

namespace torvi {
namespace {

using Comando = void (*)(StatoGlobale&, Dialoghi&);

struct Caso {
  const char* nome;
  Comando comando;
  const char* tabella;  // of the master, filled by the command
  const char* righe;    // what it then holds, in stored order
  int errore = 0;       // what a second run on the full table ends with
};

constexpr Caso kCasi[] = {
    {"sistematici", CaricaTabSistematici, "TabClasse2000-S",
     "1|AM001|AMM|A|Atti\n2|CI001|CIV|-|Obbligazioni", 3022},
    {"descrittori", CaricaTabDescrittori, "TabClasse2000-D", "1|00101|Nullit\xc3\xa0", 3022},
    {"legami", CaricaTabLegami, "TabLegameDS", "AM001|00101", 3022},
    {"asteriscati", CaricaTabDescrittoriAsteriscati, "TabLegameDSA",
     "AM001|*citt\xc3\xa0\nCI001| \nPE001|", 0},
};

std::vector<Tabella> SchemaSorgente() {
  const auto testo = [](const char* nome) { return Colonna{.nome = nome}; };
  return {
      {"TabSistematico", {testo("id"), testo("sigla"), testo("SiglaC"), testo("Sistematico")}, {}},
      {"TabDescrittore", {testo("id"), testo("Descrittore")}, {}},
      {"TabLegame", {testo("NS"), testo("nD")}, {}}};
}

class Caricatori : public testing::Test {
 protected:
  Caricatori() {
    stato.CartellaApplicazione = cartella.Percorso();
    CreaDatabase(cartella.Mdb("master.mdb"), SchemaArchivio());
    QDir(cartella.Percorso()).mkpath("Fonti");
    ScriviByte(cartella.Percorso() + "/TorviEditor.ini", "CartellaClassificazione=Fonti\n");
  }
  [[nodiscard]] QString Sorgente(const char* nome) const {
    return cartella.Percorso() + "/Fonti/" + nome;
  }
  void PreparaSorgenti() const {
    CreaDatabase(Sorgente("Classificazione.mdb"), SchemaSorgente());
    const Database sorgente = OpenDatabase(Sorgente("Classificazione.mdb"));
    Aggiungi(sorgente, "TabSistematico",
             {{"id", "AM001"}, {"sigla", "AMM"}, {"SiglaC", "A"}, {"Sistematico", "Atti"}});
    Aggiungi(sorgente, "TabSistematico",
             {{"id", "CI001"}, {"sigla", "CIV"}, {"Sistematico", "Obbligazioni"}});
    Aggiungi(sorgente, "TabDescrittore", {{"id", "00101"}, {"Descrittore", "Nullità"}});
    Aggiungi(sorgente, "TabLegame", {{"NS", "AM001"}, {"nD", "00101"}});
    ScriviByte(Sorgente("DescrittoriA2000.txt"),
               ConvertiAnsi(u"AM001 *città\r\nCI001  \r\nPE001;\r\n"));
  }
  // The number of the error that ends the command after a good login.
  int Esegue(Comando comando) {
    dialoghi.AttendeLogin(true);
    return NumeroErrore([&] { comando(stato, dialoghi); });
  }
  [[nodiscard]] QStringList NelMaster(const char* tabella) const {
    return RigheTesto(OpenDatabase(cartella.Mdb("master.mdb")), tabella);
  }

  CartellaDiProva cartella;
  StatoGlobale stato;
  DialoghiScritti dialoghi;
};

TEST_F(Caricatori, FillTheirTableOnceAndWithoutAWord) {
  for (const Caso& caso : kCasi) {
    EXPECT_NE(Esegue(caso.comando), 0) << caso.nome << " without its source";
  }
  PreparaSorgenti();
  for (const Caso& caso : kCasi) {
    EXPECT_EQ(Esegue(caso.comando), 0) << caso.nome;
    EXPECT_EQ(NelMaster(caso.tabella).join('\n').toStdString(), caso.righe) << caso.nome;
    EXPECT_EQ(Esegue(caso.comando), caso.errore) << caso.nome;
    const int volte = caso.errore == 0 ? 2 : 1;
    EXPECT_EQ(NelMaster(caso.tabella).join('\n'), QStringList(volte, caso.righe).join('\n'));
  }
  EXPECT_TRUE(dialoghi.Messaggi().isEmpty());
}

TEST_F(Caricatori, DoNothingWithoutTheLogin) {
  PreparaSorgenti();
  for (const Comando comando : {CaricaTabSistematici, CaricaTabDescrittori, CaricaTabLegami,
                                CaricaTabDescrittoriAsteriscati, CaricaTabNorme}) {
    stato.LoginRiservato = true;
    dialoghi.AttendeLogin(false);
    comando(stato, dialoghi);
    EXPECT_EQ(dialoghi.UltimoMessaggio(), "Non hai i diritti per accedere");
    EXPECT_FALSE(stato.LoginRiservato);
  }
  for (const Caso& caso : kCasi) EXPECT_EQ(NelMaster(caso.tabella), QStringList()) << caso.nome;
}

TEST_F(Caricatori, AFaultLeavesTheRowsBeforeItAndNamesItsOwn) {
  PreparaSorgenti();
  ScriviByte(Sorgente("DescrittoriA2000.txt"), "AM001 *uno\r\n\r\nAM002 *due\r\n");
  dialoghi.AttendeLogin(true);
  const QString errore = ErroreDi([this] { CaricaTabDescrittoriAsteriscati(stato, dialoghi); });
  EXPECT_TRUE(errore.startsWith("5 ") && errore.contains("(riga 2 di ")) << errore.toStdString();
  EXPECT_EQ(NelMaster("TabLegameDSA"), QStringList("AM001|*uno"));
}

// Rows wait in memory: it is the end of the load that finds no place for them, and it says so.
TEST_F(Caricatori, AWriteThatFailsAtTheEndIsTold) {
  PreparaSorgenti();
  const QString catalogo = cartella.Mdb("Catalogo norme.mdb");
  CreaDatabase(catalogo, SchemaCatalogo());
  const QString lungo(200, 'x');
  {
    const Database sorgente = OpenDatabase(Sorgente("Classificazione.mdb"));
    const Database norme = OpenDatabase(catalogo);
    const UnitaDiScrittura unite[] = {UnitaDiScrittura(sorgente), UnitaDiScrittura(norme)};
    for (int i = 0; i < 400; ++i) {
      const QString id = QString::number(10000 + i);
      Aggiungi(sorgente, "TabDescrittore", {{"id", id}, {"Descrittore", lungo}});
      Aggiungi(norme, "tabCatalogo", {{"titolo", lungo}, {"pd", id}});
      Aggiungi(norme, "PD", {{"pd", id}});
    }
  }
  const QByteArray linea = "AM001 *" + lungo.toLatin1() + "\r\n";
  ScriviByte(Sorgente("DescrittoriA2000.txt"), linea.repeated(400));
  for (const auto& [comando, file] :
       {std::pair<Comando, QString>{CaricaTabDescrittori, cartella.Mdb("master.mdb")},
        {CaricaTabDescrittoriAsteriscati, cartella.Mdb("master.mdb")},
        {CaricaTabNorme, catalogo}}) {
    const FileLimitati limitati(static_cast<rlim_t>(QFileInfo(file).size()));
    EXPECT_EQ(Esegue(comando), 57) << file.toStdString();
  }
}

TEST_F(Caricatori, TheReducedCatalogueTakesTheActsOfItsKeys) {
  const QString percorso = cartella.Mdb("Catalogo norme.mdb");
  EXPECT_EQ(Esegue(CaricaTabNorme), 3024);
  CreaDatabase(percorso, SchemaCatalogo());
  const Database catalogo = OpenDatabase(percorso);
  for (const char* pd : {"1990-241", "2001-165", "1942-262"}) {
    Aggiungi(catalogo, "tabCatalogo",
             {{"titolo", "Legge"},
              {"anno", QByteArray(pd).left(4).toInt()},
              {"numero", pd + 5},
              {"abbreviazione", "l."},
              {"promulgazione", "07/08"},
              {"pd", pd}});
  }
  for (const char* pd : {"2001-165", "1942-262", "9999-1"}) Aggiungi(catalogo, "PD", {{"pd", pd}});
  EXPECT_EQ(Esegue(CaricaTabNorme), 3021);  // the last key is of no act
  const QStringList ridotta = {"Legge|2001|165|l.|07/08|-|2001-165",
                               "Legge|1942|262|l.|07/08|-|1942-262"};
  EXPECT_EQ(RigheTesto(catalogo, "tabCatalogoRidotta"), ridotta);
  EXPECT_EQ(stato.PathArchivio, percorso);
  EXPECT_TRUE(stato.DbCatalogo.Aperto());
  EXPECT_EQ(Esegue(CaricaTabNorme), 3022);
  EXPECT_EQ(RigheTesto(catalogo, "tabCatalogoRidotta"), ridotta);
}

TEST_F(Caricatori, GenuineFilesAreReadAsTheyAre) {
  for (const char* nome : {"classificazione.mdb", "DescrittoriA2000.txt"}) {
    QFile::copy(FileGenuino(nome), Sorgente(nome));
  }
  const QString catalogo = cartella.Mdb("catalogo norme.mdb");
  QFile::copy(FileGenuino("catalogo norme.mdb"), catalogo);
  QFile::setPermissions(catalogo, QFile::ReadOwner | QFile::WriteOwner);
  constexpr int kRighe[] = {31, 44, 66, 28};
  for (std::size_t i = 0; i < std::size(kCasi); ++i) {
    EXPECT_EQ(Esegue(kCasi[i].comando), 0);
    EXPECT_EQ(NelMaster(kCasi[i].tabella).size(), kRighe[i]);
  }
  EXPECT_TRUE(NelMaster("TabLegameDSA").contains("AM010|*città metropolitane"));
  EXPECT_EQ(Byte(Sorgente("classificazione.mdb")), Byte(FileGenuino("classificazione.mdb")));
  // The catalogue is written, so it is converted first; two of its six acts are there already.
  EXPECT_EQ(Esegue(CaricaTabNorme), 3022);
  EXPECT_TRUE(QFile::exists(catalogo + ".jet"));
}

}  // namespace
}  // namespace torvi
