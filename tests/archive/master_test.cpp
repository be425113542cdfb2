#include "archive/master.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include "archive/database.h"
#include "comune/cartella_di_prova.h"
#include "export/codepagina.h"

namespace torvi {
namespace {

using Riga = QMap<QString, Campo>;

QList<Riga> Righe(const Database& database, const QString& tabella) {
  QList<Riga> righe;
  const QStringList colonne = database.Colonne(tabella);
  for (Recordset corrente = database.OpenRecordset(tabella); !corrente.Eof(); corrente.MoveNext()) {
    Riga riga;
    for (const QString& colonna : colonne) riga[colonna] = corrente.Fields(colonna.toStdString());
    righe += riga;
  }
  return righe;
}

bool SenzaRipetizioni(const QStringList& valori) {
  QSet<QString> visti;
  for (const QString& valore : valori) visti += valore.toLower();
  return visti.size() == valori.size();
}

// One master and one catalogue for all tests, which only read them.
class Master : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    cartella = std::make_unique<CartellaDiProva>();
    CreaMaster(cartella->Mdb("master.mdb"));
    CreaCatalogo(cartella->Mdb("catalogo norme.mdb"));
  }
  static void TearDownTestSuite() { cartella.reset(); }
  void SetUp() override {
    master = OpenDatabase(cartella->Mdb("master.mdb"), Accesso::SolaLettura);
    catalogo = OpenDatabase(cartella->Mdb("catalogo norme.mdb"), Accesso::SolaLettura);
  }

  static std::unique_ptr<CartellaDiProva> cartella;
  Database master;
  Database catalogo;
};
std::unique_ptr<CartellaDiProva> Master::cartella;

TEST_F(Master, LeTabelleDeiDocumentiSonoVuoteELeAltrePiene) {
  const QStringList vuote = {
      "TabInfo",        "TabDocumento",       "TabRifBibl",     "TabResponsabilita",
      "LegameDocResp",  "TabTesto",           "LegameDocTesto", "TabClasse2000",
      "LegameDocClass", "LegameDocClass1999", "TabFonte",       "LegameDocFonte"};
  for (const QString& tabella : master.Tabelle()) {
    EXPECT_EQ(master.OpenRecordset(tabella).Eof(), vuote.contains(tabella))
        << tabella.toStdString();
  }
  QFile::copy(cartella->Mdb("master.mdb"), cartella->Mdb("A.mdb"));
  const Database copia = OpenDatabase(cartella->Mdb("A.mdb"));
  for (const char* tabella : {"TabDocumento", "TabRifBibl", "TabTesto", "TabResponsabilita",
                              "TabClasse2000", "TabFonte"}) {
    EXPECT_EQ(Aggiungi(copia, tabella, {}), 1) << tabella;
  }
}

TEST_F(Master, LeChiaviFisseSonoAlLoroPosto) {
  struct Caso {
    const char* riga;
    const char* colonne;
    const char* valori;
  };
  for (const auto& [riga, colonne, valori] :
       {Caso{"TabFonteInterna where IDFonteInterna = 117", "FonteNorm liv1 liv2",
             "Tribunale amministrativo regionale|3|6"},
        Caso{"TabFonteCom where IDFonteCom = 5", "FonteCom Settore Codice AnnoF",
             "Tratt. CE|1|E|1997"},
        Caso{"TabFonteCom where IDFonteCom = 30", "FonteCom Tipo", "Conv. UE|4"},
        Caso{"TabFonteInt where IDFonteInt = 2", "FonteInt Tipo", "C. eur. dir. uomo|3"}}) {
    EXPECT_EQ(RigheTesto(master, QString("select * from ") + riga, QString(colonne).split(' ')),
              QStringList(valori));
  }
}

// The combos of the document form take the place of a code for its value.
TEST_F(Master, ICodiciDelDocumentoSonoInOrdine) {
  const auto codici = [&](const char* tabella, const char* colonna) {
    return RigheTesto(master, tabella, {colonna}).join(' ');
  };
  EXPECT_EQ(codici("TabBib", "IDBib"), "0 1 2 3 4");
  EXPECT_EQ(codici("TabTipoDoc", "IDTD"), "01 02 03 04 05 06 07 08 09");
  EXPECT_EQ(codici("TabTAbs", "IDTAbs"), "400 500 600 700 800 900");
  EXPECT_EQ(RigheTesto(master, "TabLingua", {"idLingua", "Lingua"}).front(), "00|italiano");
}

// Names that the entry of sources compares to the character.
TEST_F(Master, INomiCheLImmissioneConosceCiSono) {
  struct Caso {
    const char* tabella;
    const char* condizione;
    QStringList nomi;
  };
  const QList<Caso> casi = {
      {"TabFonteInterna", "liv1 = '0'", {"Cost."}},
      {"TabFonteInterna", "liv1 = '1'", {"c.c.", "Norme bancarie uniformi"}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '0'", {"l. cost."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '1'", {"l.", "d.l.", "d.lg.", "d.p.r.", "r.d."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '2'", {"l.p."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '3'", {"l.r."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '4'", {"reg. cam."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '5'", {"reg. sen."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = '6'", {"d.m.", "d.p.c.m.", "dir. p.c.m."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 is null", {"dir p.c.m."}},
      {"TabFonteInterna", "liv1 = '2' and liv2 = 'a'", {"c.c.n.l."}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '0'", {"C. Cost."}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '1'", {"Cons. giurisd. Camera"}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '2'", {"Cass."}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '3'", {"Trib.", "App."}},
      {"TabFonteInterna",
       "liv1 = '3' and liv2 = '4'",
       {"Commissione tributaria di I grado", "Commissione tributaria di II grado",
        "Commissione tributaria provinciale", "Commissione tributaria regionale"}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '5'", {"C. Conti"}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '7'", {"Trib. Acque"}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = '9'", {"Coll. arb."}},
      {"TabFonteInterna", "liv1 = '3' and liv2 = 'b'", {"giur. sport"}},
      {"TabFonteCom",
       "Tipo = 2",
       {"Reg. P.E.", "Ris. P.E.", "Ris. CE", "Ris. CEE", "Ris. UE", "Reg. CEE", "Reg. CE",
        "Reg. UE", "Dir. CE", "Dir. UE"}},
      {"TabFonteCom", "Tipo = 3", {"C. Giust."}},
      {"TabFonteInt", "Tipo = 2", {"Ris. ONU"}},
      {"TabFonteInt", "Tipo = 3", {"C. int. giust."}},
      {"TabFonteCan", "Tipo = 1", {"C. Iur. Can."}},
      {"TabFonteCan", "Tipo = 3", {"Trib. Eccl. Reg.", "Trib. Eccl. Dioc."}},
  };
  for (const Caso& caso : casi) {
    const QString tabella = caso.tabella;
    const QString colonna = tabella == "TabFonteInterna" ? "FonteNorm" : tabella.mid(3);
    const QStringList offerti = RigheTesto(
        master, QStringLiteral("select * from %1 where %2").arg(tabella, caso.condizione),
        {colonna});
    for (const QString& nome : caso.nomi) {
      EXPECT_TRUE(offerti.contains(nome)) << caso.condizione << ": " << nome.toStdString();
    }
  }
}

// A source finds its catalogue row by the name alone.
TEST_F(Master, INomiNonSiRipetono) {
  const QList<QPair<QString, QString>> casi = {
      {"TabFonteInterna", "FonteNorm"},
      {"TabFonteCom", "FonteCom"},
      {"TabFonteCan", "FonteCan"},
      {"TabRivista", "TitoloRivista"},
      {"TabCitta", "citta"},
      {"TabMinistero", "MinisteroNorm"},
      {"TabAutorita", "AutoritaNorm"},
      {"TabAmministrazione", "AmministrazioneNorm"},
      {"TabSezione", "sigla"},
      {"TabStato", "stato"},
      {"TabRegione", "codRegioneURN"},
      {"TabProvincia", "provincia"},
      {"TabClasse1999", "Codice"},
      {"TabNIT", "fonte"},
  };
  for (const auto& [tabella, colonna] : casi) {
    EXPECT_TRUE(SenzaRipetizioni(RigheTesto(master, tabella, {colonna}))) << tabella.toStdString();
  }
}

TEST_F(Master, LeRegioniSonoQuelleDellElencoDiScelta) {
  QStringList voci;
  for (const Riga& riga : Righe(master, "TabRegione")) {
    voci += riga["CodRegione"].Testo() + " - " + riga["regione"].Testo();
  }
  EXPECT_EQ(voci.join(", "),
            "AB - Abruzzo, BA - Basilicata, CL - Calabria, CM - Campania, ER - Emilia Romagna, "
            "FV - Friuli Venezia Giulia, LA - Lazio, LI - Liguria, LO - Lombardia, MA - Marche, "
            "MO - Molise, PI - Piemonte, PU - Puglia, SA - Sardegna, SI - Sicilia, TO - Toscana, "
            "TA - Trentino Alto Adige, UM - Umbria, VA - Valle d'Aosta, VE - Veneto");
  const QStringList province = RigheTesto(master, "TabProvincia", {"CodProvincia"});
  EXPECT_TRUE(province.contains("BZ") && province.contains("TN"));
  for (const QString& codice : province) EXPECT_EQ(codice.size(), 2) << codice.toStdString();
}

// An act with a place in its citation needs a template with a place holder for it, or none.
TEST_F(Master, IModelliDegliIdentificatoriSonoBenFormati) {
  static const QRegularExpression forma(
      "^urn:nir:(stato|ministero|camera\\.deputati|senato\\.repubblica|"
      "consiglio\\.ministri|presidente\\.consiglio\\.ministri|"
      "regione\\.xxx|provincia\\.xxx):[a-z]+(\\.[a-z]+)*"
      "(:\\d{4}-\\d\\d-\\d\\d%3b\\d+)?$");
  for (const Riga& riga : Righe(master, "TabFonteInterna")) {
    const QString nome = riga["FonteNorm"].Testo();
    const QString modello = riga["URN"].TestoOVuoto();
    if (modello.isEmpty()) continue;
    EXPECT_TRUE(forma.match(modello).hasMatch()) << modello.toStdString();
    EXPECT_NE(riga["liv1"].Testo(), "3") << nome.toStdString();
    const QString liv2 = riga["liv2"].TestoOVuoto();
    const bool regionale = liv2 == "3" || (liv2 == "8" && nome.endsWith("r."));
    const bool provinciale = liv2 == "2" || (liv2 == "8" && !nome.endsWith("r."));
    EXPECT_EQ(modello.contains("regione.xxx"), regionale) << nome.toStdString();
    EXPECT_EQ(modello.contains("provincia.xxx"), provinciale) << nome.toStdString();
  }
}

// The save of a treaty seeks its text, from its kind on, among the international sources.
TEST_F(Master, OgniTrattatoHaLaSuaFonte) {
  Recordset fonti = master.OpenRecordset("TabFonteInt");
  fonti.Index("Fonte");
  for (const Riga& riga : Righe(master, "TabNIT")) {
    const QString fonte = riga["fonte"].Testo();
    EXPECT_TRUE(fonte.startsWith(riga["nit"].Testo() + ' ')) << fonte.toStdString();
    EXPECT_TRUE(QDate::fromString(riga["data"].Testo(), "dd/MM/yyyy").isValid())
        << fonte.toStdString();
    fonti.Seek(fonte);
    ASSERT_FALSE(fonti.NoMatch()) << fonte.toStdString();
    EXPECT_EQ(fonti.Fields("FonteInt"), riga["nit"]) << fonte.toStdString();
    EXPECT_EQ(fonti.Fields("Tipo"), Campo(1)) << fonte.toStdString();
  }
}

TEST_F(Master, LeFontiEuropeeHannoQuelloCheServeAlLoroNumero) {
  const QMap<QString, QString> codici = {{"3", "RLDHSEF"}, {"6", "JAF"}};
  for (const Riga& riga : Righe(master, "TabFonteCom")) {
    const QString nome = riga["FonteCom"].Testo();
    const QString settore = riga["Settore"].TestoOVuoto();
    const QString codice = riga["Codice"].TestoOVuoto();
    EXPECT_EQ(settore.isEmpty(), codice.isEmpty()) << nome.toStdString();
    if (codici.contains(settore)) {
      EXPECT_EQ(codice.size(), 1);
      EXPECT_TRUE(codici[settore].contains(codice)) << nome.toStdString();
    } else if (!settore.isEmpty()) {
      EXPECT_EQ(riga["AnnoF"].TestoOVuoto().size(), 4) << nome.toStdString();
    }
  }
}

TEST_F(Master, LeCoppieDellaClassificazioneNominanoCodiciEsistenti) {
  const QStringList sistematici = RigheTesto(master, "TabClasse2000-S", {"CodiceS"});
  const QStringList descrittori = RigheTesto(master, "TabClasse2000-D", {"CodiceD"});
  EXPECT_GE(sistematici.size(), 100);
  EXPECT_GE(descrittori.size(), 300);
  for (const QString& codice : sistematici + descrittori) EXPECT_EQ(codice.size(), 5);
  const QSet<QString> s(sistematici.begin(), sistematici.end());
  const QSet<QString> d(descrittori.begin(), descrittori.end());
  for (const Riga& riga : Righe(master, "TabLegameDS")) {
    EXPECT_TRUE(s.contains(riga["NS"].Testo()) && d.contains(riga["nD"].Testo()))
        << riga["NS"].Testo().toStdString() << riga["nD"].Testo().toStdString();
  }
  for (const Riga& riga : Righe(master, "TabLegameDSA")) {
    const QString termine = riga["nD"].Testo();
    EXPECT_TRUE(s.contains(riga["NS"].Testo())) << riga["NS"].Testo().toStdString();
    EXPECT_TRUE(termine.startsWith('*')) << termine.toStdString();
    // The decoders would take the first characters for a descriptor's code.
    EXPECT_FALSE(d.contains(termine.left(5))) << termine.toStdString();
  }
}

// A root code has no parent to show, any other is found only together with its parent.
TEST_F(Master, LAlberoDellaClassificazioneAnterioreHaSoloRamiVivi) {
  QMap<qint64, QString> codici;
  for (const Riga& riga : Righe(master, "TabClasse1999")) {
    codici[riga["IDClasse1999"].Intero()] = riga["Codice"].Testo();
  }
  for (const Riga& riga : Righe(master, "TabClasse1999")) {
    const QString codice = riga["Codice"].Testo();
    const bool radice = codice.size() == 2 || (codice.size() == 3 && codice.startsWith("D9"));
    ASSERT_EQ(riga["ID_PADRE"].Nullo(), radice) << codice.toStdString();
    if (!radice) {
      EXPECT_EQ(codici[riga["ID_PADRE"].Intero()], codice.chopped(1));
    }
  }
}

TEST_F(Master, LeRivisteHannoSigleDiDueAQuattroLettereEUnaPeriodicita) {
  static const QRegularExpression sigla("^[A-Z]{2,4}$");
  const QStringList periodicita = RigheTesto(master, "TabPeriodicita", {"IDPeriodicita"});
  EXPECT_TRUE(periodicita.contains("9"));
  for (const Riga& riga : Righe(master, "TabRivista")) {
    EXPECT_TRUE(sigla.match(riga["CPER"].Testo()).hasMatch()) << riga["CPER"].Testo().toStdString();
    EXPECT_TRUE(periodicita.contains(riga["IDPeriodicita"].Testo()));
  }
}

TEST_F(Master, TuttoSiScriveNellePagineDiCodice) {
  for (const Database& database : {master, catalogo}) {
    for (const QString& tabella : database.Tabelle()) {
      for (const Riga& riga : Righe(database, tabella)) {
        for (const Campo& campo : riga) {
          const QString testo = campo.TestoOVuoto();
          EXPECT_EQ(DaAnsi(ConvertiAnsi(testo)), testo) << tabella.toStdString();
          EXPECT_EQ(ConvertiOem(testo).count('?'), testo.count('?'));
        }
      }
    }
  }
}

TEST_F(Master, IlCatalogoDelleNormeECoerente) {
  const QMap<QString, QString> citazione = {
      {"l.cost.", "l. cost."}, {"dir.p.c.m.", "dir. p.c.m."}, {"d.lgs.", "d.lg."}};
  const QStringList mesi = {"gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
                            "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};
  const QList<Riga> righe = Righe(catalogo, "tabCatalogo");
  EXPECT_GE(righe.size(), 250);
  for (const Riga& riga : righe) {
    const QString estremi = riga["estremi"].Testo();
    const QDate data = QDate::fromString(riga["promulgazione"].Testo(), "dd/MM/yyyy");
    ASSERT_TRUE(data.isValid()) << estremi.toStdString();
    EXPECT_EQ(riga["anno"], Campo(data.year())) << estremi.toStdString();
    const QString abbreviazione = riga["abbreviazione"].Testo();
    QString attesi = QStringLiteral("%1 %2 %3 %4")
                         .arg(citazione.value(abbreviazione, abbreviazione))
                         .arg(data.day())
                         .arg(mesi[data.month() - 1])
                         .arg(data.year());
    if (!riga["numero"].Nullo()) attesi += QLatin1String(", n. ") + riga["numero"].Testo();
    EXPECT_EQ(estremi, attesi);
  }
  const QStringList chiavi = RigheTesto(catalogo, "tabCatalogo", {"pd"});
  for (const QString& pd : RigheTesto(catalogo, "PD", {"pd"})) {
    EXPECT_TRUE(chiavi.contains(pd)) << pd.toStdString();
  }
  EXPECT_TRUE(catalogo.OpenRecordset("tabCatalogoRidotta").Eof());
}

TEST_F(Master, LaStessaRicettaDaGliStessiByte) {
  CreaMaster(cartella->Mdb("secondo.mdb"));
  EXPECT_EQ(Byte(cartella->Mdb("secondo.mdb")), Byte(cartella->Mdb("master.mdb")));
  EXPECT_EQ(NumeroErrore([&] { CreaMaster(cartella->Mdb("secondo.mdb")); }), 75);
}

}  // namespace
}  // namespace torvi
