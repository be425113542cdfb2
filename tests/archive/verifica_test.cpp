#include "archive/verifica.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>

#include "archive/conversione.h"
#include "archive/schema.h"
#include "comune/cartella_di_prova.h"

namespace torvi {
namespace {

TEST(VerificaTest, UnaConsegnaNuovaESana) {
  const CartellaDiProva cartella;
  EXPECT_EQ(QStringList(), VerificaArchivio(cartella.NuovaConsegna()));
}

TEST(VerificaTest, OgniDifettoHaLaSuaRiga) {
  const CartellaDiProva cartella;
  const Database db = cartella.NuovaConsegna();
  Aggiungi(db, "TabInfo", {{"Consegna", "B02"}});
  Aggiungi(db, "TabDocumento", {{"IDRifBibl", 7}});
  Aggiungi(db, "TabDocumento", {{"IDRifBibl", 0}});
  for (int doc = 11; doc <= 17; ++doc) {
    Aggiungi(db, "LegameDocFonte", {{"IDDoc", doc}, {"IDFnt", 1}});
  }
  Aggiungi(db, "TabFonte", {{"TP", "LIO"}, {"IDStato", 9}});
  // The same number points to a table of its own in each of the four kinds, and in others to none.
  for (const char* tp : {"LIO", "GICO", "AC", "GEI", "NIC", "FCG", "NS"}) {
    Aggiungi(db, "TabFonte", {{"TP", tp}, {"fonte", 5}});
  }
  Aggiungi(db, "LegameDocTesto", {{"IDDoc", 1}, {"Tipo", "0"}});
  EXPECT_EQ(QStringList({
                "La tabella TabInfo ha 2 righe invece di una.",
                "TabDocumento.IDRifBibl: 1 riga senza riscontro in TabRifBibl (7).",
                "LegameDocTesto.IDTesto: 1 riga senza riscontro in TabTesto (Null).",
                "LegameDocFonte.IDDoc: 7 righe senza riscontro in TabDocumento "
                "(11, 12, 13, 14, 15, ...).",
                "TabFonte.fonte: 3 righe senza riscontro in TabFonteInterna (5, 5, 5).",
                "TabFonte.fonte: 1 riga senza riscontro in TabFonteInt (5).",
                "TabFonte.fonte: 1 riga senza riscontro in TabFonteCom (5).",
                "TabFonte.fonte: 1 riga senza riscontro in TabFonteCan (5).",
                "TabFonte.IDStato: 1 riga senza riscontro in TabStato (9).",
            }),
            VerificaArchivio(db));
}

TEST(VerificaTest, OgniLegameSospesoSiVede) {
  const struct {
    const char* tabella;
    const char* colonna;
    const char* destinazione;
  } legami[] = {
      {"TabDocumento", "IDRifBibl", "TabRifBibl"},
      {"TabRifBibl", "IDRivista", "TabRivista"},
      {"LegameDocTesto", "IDDoc", "TabDocumento"},
      {"LegameDocTesto", "IDTesto", "TabTesto"},
      {"LegameDocResp", "IDDoc", "TabDocumento"},
      {"LegameDocResp", "IDResponsabilita", "TabResponsabilita"},
      {"LegameDocClass", "IDDoc", "TabDocumento"},
      {"LegameDocClass", "IDClass", "TabClasse2000"},
      {"LegameDocClass1999", "IDDoc", "TabDocumento"},
      {"LegameDocClass1999", "IDClass", "TabClasse1999"},
      {"LegameDocFonte", "IDDoc", "TabDocumento"},
      {"LegameDocFonte", "IDFnt", "TabFonte"},
      {"TabClasse2000", "IDClasse2000-S", "TabClasse2000-S"},
      {"TabClasse2000", "IDClasse2000-D", "TabClasse2000-D"},
      {"TabClasse1999", "ID_PADRE", "TabClasse1999"},
      {"TabFonte", "IDRegione", "TabRegione"},
      {"TabFonte", "IDProvincia", "TabProvincia"},
      {"TabFonte", "IDCitta", "TabCitta"},
      {"TabFonte", "IDMinistero", "TabMinistero"},
      {"TabFonte", "IDAmministrazione", "TabAmministrazione"},
      {"TabFonte", "IDAutorita", "TabAutorita"},
      {"TabFonte", "IDSezione", "TabSezione"},
      {"TabFonte", "IDStato", "TabStato"},
  };
  const CartellaDiProva cartella;
  const Database db = cartella.NuovaConsegna();
  for (const auto& legame : legami) Aggiungi(db, legame.tabella, {{legame.colonna, 77}});
  const QString difetti = VerificaArchivio(db).join('\n') + '\n';
  for (const auto& legame : legami) {
    const QRegularExpression riga(QStringLiteral("(^|\n)%1\\.%2: \\d+ rig(a|he) senza riscontro in "
                                                 "%3 \\([^\n]*77[^\n]*\\)\\.\n")
                                      .arg(legame.tabella, legame.colonna, legame.destinazione));
    EXPECT_TRUE(difetti.contains(riga)) << legame.tabella << '.' << legame.colonna;
  }
}

TEST(VerificaTest, UnoSchemaIncompletoSiVedeENonEUnArchivio) {
  const CartellaDiProva cartella;
  std::vector<Tabella> tabelle = SchemaArchivio();
  tabelle.erase(tabelle.begin());                                      // TabDocumento
  tabelle.front().colonne.pop_back();                                  // TabRifBibl.Data
  tabelle.front().indici.pop_back();                                   // TabRifBibl.IDRivista
  tabelle.front().colonne.erase(tabelle.front().colonne.begin() + 1);  // IDRivista, which points
  const QString percorso = cartella.Mdb("mezzo.mdb");
  CreaDatabase(percorso, tabelle);
  const Database db = OpenDatabase(percorso);
  Aggiungi(db, "TabInfo", {{"Consegna", "A01"}});
  EXPECT_EQ(QStringList({"Manca la tabella TabDocumento.",
                         "Nella tabella TabRifBibl manca la colonna IDRivista.",
                         "Nella tabella TabRifBibl manca la colonna Data.",
                         "Nella tabella TabRifBibl manca l'indice IDRivista."}),
            VerificaArchivio(db));
  EXPECT_EQ("3011 Il file " + percorso +
                " non è un archivio: manca la tabella TabDocumento. Scegliere un altro file.",
            ErroreDi([&] { RichiediArchivio(db); }));
}

TEST(VerificaTest, UnFileDanneggiatoSiDichiara) {
  const CartellaDiProva cartella;
  Database db = cartella.NuovaConsegna();
  const QString percorso = db.Name();
  UnitaDiScrittura unita(db);
  for (int i = 0; i < 300; ++i) {
    Aggiungi(db, "TabTesto", {{"testo", QString(300, 'x')}});
  }
  unita.Concludi();
  db.Close();
  QByteArray byte = Byte(percorso);
  byte.replace(byte.size() - 20000, 9000, QByteArray(9000, '\x5a'));
  ScriviByte(percorso, byte);
  const QStringList difetti = VerificaArchivio(OpenDatabase(percorso));
  ASSERT_FALSE(difetti.isEmpty());
  EXPECT_TRUE(difetti.front().startsWith("Il file è danneggiato: "))
      << difetti.join('\n').toStdString();
}

TEST(VerificaTest, NellaConsegnaGenuinaSiVedonoILegamiSospesi) {
  const QString genuina = FileGenuino("consegna.mdb");
  const CartellaDiProva cartella;
  const QString nuovo = cartella.Mdb("convertita.mdb");
  ConvertiJet(genuina, nuovo);
  EXPECT_EQ(QStringList({
                "LegameDocTesto.IDDoc: 1 riga senza riscontro in TabDocumento (26).",
                "LegameDocResp.IDDoc: 4 righe senza riscontro in TabDocumento (4, 26, 26, 26).",
                "LegameDocClass.IDDoc: 1 riga senza riscontro in TabDocumento (26).",
                "LegameDocFonte.IDDoc: 2 righe senza riscontro in TabDocumento (26, 26).",
            }),
            VerificaArchivio(OpenDatabase(nuovo)));
}

}  // namespace
}  // namespace torvi
