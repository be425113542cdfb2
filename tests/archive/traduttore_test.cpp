#include "archive/traduttore.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QStringList>
#include <memory>
#include <vector>

#include "archive/collazione.h"
#include "archive/errore.h"
#include "archive/schema.h"
#include "comune/tavole.h"

namespace torvi {
namespace {

Traduzione Tradotta(const char* istruzione) { return Traduci(QString(istruzione)); }

// The engine by itself, with the tables of an archive and of the catalogue, empty.
class Motore {
 public:
  Motore() {
    sqlite3* aperto = nullptr;
    EXPECT_EQ(sqlite3_open(":memory:", &aperto), SQLITE_OK);
    motore_.reset(aperto);
    RegistraFunzioni(aperto);
    for (const std::vector<Tabella>& schema : {SchemaArchivio(), SchemaCatalogo()}) {
      for (const Tabella& tabella : schema) {
        for (const QString& istruzione : IstruzioniTabella(tabella)) Sql(istruzione.toUtf8());
      }
    }
  }

  // A row a string, values between bars, Null as "-"; a failure as its message.
  QStringList Sql(const QByteArray& sql, const QStringList& parametri = {}) {
    sqlite3_stmt* preparata = nullptr;
    if (sqlite3_prepare_v2(motore_.get(), sql.constData(), -1, &preparata, nullptr) != SQLITE_OK) {
      return {sqlite3_errmsg(motore_.get())};
    }
    const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> custodita(preparata,
                                                                               &sqlite3_finalize);
    for (int i = 0; i < parametri.size(); ++i) {
      sqlite3_bind_text(preparata, i + 1, parametri[i].toUtf8().constData(), -1, SQLITE_TRANSIENT);
    }
    QStringList righe;
    while (sqlite3_step(preparata) == SQLITE_ROW) righe += Riga(preparata);
    return righe;
  }
  QStringList Righe(const char* istruzione, const QStringList& parametri = {}) {
    return Sql(Tradotta(istruzione).sql, parametri);
  }

 private:
  static QString Riga(sqlite3_stmt* preparata) {
    QStringList valori;
    for (int i = 0; i < sqlite3_column_count(preparata); ++i) {
      if (sqlite3_column_name(preparata, i) == std::string(1, kPrefissoAlias)) continue;
      const auto* testo = reinterpret_cast<const char*>(sqlite3_column_text(preparata, i));
      valori += testo == nullptr ? "-" : testo;
    }
    return valori.join('|');
  }

  std::unique_ptr<sqlite3, decltype(&sqlite3_close)> motore_{nullptr, &sqlite3_close};
};

// Every statement that the commands of the system give, with values put in as they put them; before
// it the table whose rows can be changed through it.
TEST(Traduttore, OgniIstruzioneDelSistemaGira) {
  Motore motore;
  for (const QStringList& caso : LeggiTavola("istruzioni_del_sistema.txt")) {
    const QString& istruzione = caso.at(1);
    const Traduzione traduzione = Traduci(istruzione);
    EXPECT_EQ(traduzione.tabella, caso.at(0) == "-" ? "" : caso.at(0)) << istruzione.toStdString();
    EXPECT_EQ(traduzione.daRighe, istruzione.startsWith("select", Qt::CaseInsensitive));
    // Only the counts give a row in an empty archive; a failure gives its message.
    EXPECT_EQ(motore.Sql(traduzione.sql),
              istruzione.contains("count(") ? QStringList("0") : QStringList())
        << istruzione.toStdString();
  }
}

// The row number comes first and alone under its name.
TEST(Traduttore, DaIlNumeroDiRigaDoveSiScriveSulPosto) {
  Motore motore;
  motore.Sql("INSERT INTO LegameDocTesto (rowid, IDDoc, IDTesto, Tipo) VALUES (9, 1, 2, '3')");
  for (const char* istruzione :
       {"select LegameDocTesto.* from LegameDocTesto", "select * from legameDocTesto",
        "select IDDoc, IDTesto, Tipo from LegameDocTesto as x where x.IDDoc = 1"}) {
    const QByteArray sql = Tradotta(istruzione).sql;
    EXPECT_EQ(motore.Sql("SELECT [=] AS riga, IDDoc, IDTesto, Tipo FROM (" + sql + ")"),
              QStringList{"9|1|2|3"})
        << istruzione;
  }
}

// The walks over the parts of a document are an index and its keys: a sort or a scan for each
// document would make an export quadratic.
TEST(Traduttore, LegamiDiUnDocumentoVengonoDallIndice) {
  Motore motore;
  for (const char* istruzione :
       {"select * from TabDocumento order by IDDocumento",
        "select * from legameDocTesto where IDDoc = ?",
        "select * from legameDocTesto, tabTesto where legameDocTesto.IDDoc = ? and "
        "legameDocTesto.Tipo = '0' and legameDocTesto.IDTesto = tabTesto.IDTesto",
        "select * from legameDocFonte, tabFonte where legameDocFonte.IDDoc = 5 and "
        "legameDocFonte.IDFnt = tabFonte.IDFonte",
        "select * from legameDocResp, tabResponsabilita where legameDocResp.IDDoc= 5 and "
        "legameDocResp.IDResponsabilita = tabResponsabilita.IDResponsabilita",
        "select * from legameDocClass, tabClasse2000, [tabClasse2000-S] where "
        "legameDocClass.IDDoc = 5 and legameDocClass.IDClass = tabClasse2000.IDClasse2000 and "
        "[tabClasse2000-S].IDCLasseS = tabClasse2000.[IDCLasse2000-S]",
        "select * from legameDocClass1999, tabClasse1999 where legameDocClass1999.IDDoc = 5 and "
        "legameDocClass1999.IDClass = tabClasse1999.IDClasse1999",
        "select * from tabRifBibl, tabRivista where tabRifBibl.IDRifBibl = 7 and "
        "tabRifBibl.IDRivista = tabRivista.IDRivista"}) {
    const QString piano = motore.Sql("EXPLAIN QUERY PLAN " + Tradotta(istruzione).sql).join('\n');
    EXPECT_FALSE(piano.contains("TEMP B-TREE")) << istruzione << '\n' << piano.toStdString();
    EXPECT_EQ(piano.count("SCAN"), QString(istruzione).contains("order by") ? 1 : 0)
        << istruzione << '\n'
        << piano.toStdString();
  }
}

struct CasoRighe {
  const char* istruzione;
  QStringList righe;
};

void Verifica(Motore& motore, const std::vector<CasoRighe>& casi) {
  for (const CasoRighe& caso : casi) {
    EXPECT_EQ(motore.Righe(caso.istruzione), caso.righe) << caso.istruzione;
  }
}

TEST(Traduttore, OrdinaComeSonoRiposteLeRighe) {
  Motore motore;
  motore.Sql("INSERT INTO TabStato VALUES (1, 'b', 0), (2, 'a', 0), (3, 'B', 0), (4, NULL, 0)");
  motore.Sql(
      "INSERT INTO TabFonte (IDFonte, TP, IDStato) VALUES (1, 'x', 3), (2, 'X', 1), "
      "(3, 'y', 2)");
  motore.Sql("INSERT INTO LegameDocFonte (IDDoc, IDFnt) VALUES (7, 3), (6, 1), (7, 2), (7, 1)");
  motore.Sql("CREATE INDEX tranello ON TabStato (stato, IDStato DESC)");
  motore.Sql(
      "INSERT INTO TabClasse1999 VALUES (1, 'A', 'padre', 0), (2, 'A1', 'figlia', 1), "
      "(3, 'A1', 'altra', 1)");
  Verifica(
      motore,
      {
          {"select IDStato from TabStato where stato >= 'a'", {"1", "2", "3"}},
          {"select IDStato from TabStato order by stato", {"4", "2", "1", "3"}},
          {"select IDStato from TabStato order by stato desc", {"1", "3", "2", "4"}},
          // The link table decides, wherever it is named; then the first.
          {"select IDDoc, IDFonte from tabFonte, legameDocFonte where IDFnt = IDFonte",
           {"7|3", "6|1", "7|2", "7|1"}},
          {"select IDDoc, TP from TabFonte INNER JOIN LegameDocFonte ON TabFonte.IDFonte = "
           "LegameDocFonte.IDFnt order by TP",
           {"6|x", "7|X", "7|x", "7|y"}},
          {"select IDFonte, stato from TabStato, TabFonte where TabFonte.IDStato = "
           "TabStato.IDStato",
           {"2|b", "3|a", "1|B"}},
          {"select IDFonte, stato from TabFonte, TabStato where TabFonte.IDStato = "
           "TabStato.IDStato",
           {"1|B", "2|b", "3|a"}},
          {"select IDFonte, TabStato.IDStato from TabFonte, TabStato where IDFonte = 1 and stato "
           ">= "
           "'a'",
           {"1|1", "1|2", "1|3"}},
          // Equal texts are one row: the first of them.
          {"select distinct TP from TabFonte", {"x", "y"}},
          {"select distinct TP from TabFonte order by TP desc", {"y", "x"}},
          {"select distinct TP from TabFonte order by IDStato", {"X", "y"}},
          {"select distinct stato from TabStato order by stato", {"-", "a", "b"}},
          {"select distinct TabFonte.* from TabFonte, LegameDocFonte where IDFnt = IDFonte and TP "
           "= 'x' order by IDFonte desc",
           {"2|X|0|-|-|-|-|-|-|-|-|-|-|-|-|-|0|0|0|0|0|0|0|0|0|1",
            "1|x|0|-|-|-|-|-|-|-|-|-|-|-|-|-|0|0|0|0|0|0|0|0|0|3"}},
          {"select distinct right(TP, 1) as Anno from TabFonte", {"x", "y"}},
          {"select count(*) as n from TabFonte, TabStato", {"12"}},
          {"select TP, count(*) as n from TabFonte group by TP", {"x|2", "y|1"}},
          {"select IDDoc, count(IDFnt) as n from LegameDocFonte group by IDDoc", {"7|3", "6|1"}},
          {"select TabClasse1999.descrizione, P.descrizione as d from TabClasse1999 inner join "
           "TabClasse1999 as P on TabClasse1999.ID_PADRE = P.IDClasse1999",
           {"figlia|padre", "altra|padre"}},
      });
}

TEST(Traduttore, ConfrontaComeIlDialetto) {
  Motore motore;
  motore.Sql(
      "INSERT INTO TabResponsabilita VALUES (1, 'D''Amico', 'Aldo', 0), "
      "(2, 'Nuñez \"x\"', '007', 0), (3, 'ENTE', NULL, 1), (4, 'però; [a] ?', '7', 0)");
  motore.Sql(
      "INSERT INTO tabCatalogo (id, titolo, anno, promulgazione) VALUES "
      "(1, 'a', 1990, '07/08/1990'), (2, 'b', 1990, '29/02/1992'), (3, 'c', 2000, NULL)");
  motore.Sql("INSERT INTO TabClasse2000 VALUES (1, 10, 0, NULL, '0'), (2, 10, 5, '*a', '2')");
  motore.Sql(
      "INSERT INTO TabRifBibl (IDRifBibl, IDRivista, Fascicolo, Data) VALUES "
      "(1, 3, NULL, '00/02/2001'), (2, 3, '', '2001'), (3, 3, '1', '12')");
  Verifica(
      motore,
      {
          {"select PrimoElemento from TabResponsabilita where PrimoElemento = 'd''amico'",
           {"D'Amico"}},
          {"select IDResponsabilita from TabResponsabilita where PrimoElemento = \"D'AMICO\"",
           {"1"}},
          {"select IDResponsabilita from TabResponsabilita where PrimoElemento = \"nuÑez "
           "\"\"X\"\"\"",
           {"2"}},
          {"select IDResponsabilita from TabResponsabilita where PrimoElemento = 'PERÒ; [a] ?'",
           {"4"}},
          {"select IDResponsabilita from TabResponsabilita where PrimoElemento = 'pero; [a] ?'",
           {}},
          {"select IDResponsabilita from TabResponsabilita where 'ente' = PrimoElemento", {"3"}},
          {"select IDResponsabilita from TabResponsabilita where tabresponsabilita!primoElemento "
           "in ('ente', \"d'amico\")",
           {"1", "3"}},
          // A number against a text column is its text.
          {"select IDResponsabilita from TabResponsabilita where SecondoElemento = 7", {"4"}},
          {"select id from tabCatalogo where anno = '1990'", {"1", "2"}},
          {"select id from tabCatalogo where anno between 1991 and 2000 or id=1and anno <> 2000",
           {"1", "3"}},
          {"select IDResponsabilita from TabResponsabilita where flagCollettivo = True", {"3"}},
          {"select IDResponsabilita from TabResponsabilita where flagCollettivo = FALSE and not "
           "SecondoElemento like '*7'",
           {"1"}},
          // Null is like nothing, and equal to nothing.
          {"select IDResponsabilita from TabResponsabilita where SecondoElemento like '*'",
           {"1", "2", "4"}},
          {"select IDResponsabilita from TabResponsabilita where SecondoElemento is null", {"3"}},
          {"select IDRifBibl from TabRifBibl where Fascicolo = \"\"", {"2"}},
          {"select IDRifBibl from TabRifBibl where Fascicolo is not null", {"2", "3"}},
          {"select IDRifBibl from TabRifBibl where right(TabRifBibl.Data,4) = \"2001\"",
           {"1", "2"}},
          {"select IDRifBibl, left(Data, 2) as g from TabRifBibl where right(Fascicolo, 1) = '1'",
           {"3|12"}},
          {"select id from tabCatalogo where promulgazione = #8/7/1990#", {"1"}},
          {"select id from tabCatalogo where promulgazione = #02/29/1992#", {"2"}},
          {"select id from tabCatalogo where promulgazione = #2/29/1990#", {}},
          {"select id from tabCatalogo where promulgazione = #7/8/1990#", {}},
          {"select id from tabCatalogo where promulgazione = #0/7/1990#", {}},
          {"select id from tabCatalogo where promulgazione = #13/7/1990#", {}},
          {"select id from tabCatalogo where promulgazione = #8/7/90#", {}},
          {"select id from tabCatalogo where not promulgazione = #8/s.d./1990#", {}},
          {"select [TabClasse2000].Check from TabClasse2000 where [Classe2000-D] = '*A'", {"2"}},
          {"select TabClasse2000.[IDClasse2000-D] from TabClasse2000 where [IDClasse2000-D] > 0;",
           {"5"}},
      });
  EXPECT_EQ(motore.Righe("select IDRifBibl from TabRifBibl inner join TabRivista on Fascicolo = ? "
                         "where Data = ?"),
            QStringList());
  EXPECT_EQ(motore.Righe("select id, titolo as t from tabCatalogo where titolo = ? or id = ?",
                         {"C", "1"}),
            (QStringList{"1|a", "3|c"}));
}

TEST(Traduttore, CambiaECancella) {
  Motore motore;
  motore.Sql(
      "INSERT INTO TabDocumento (IDDocumento, pagine, LIN) VALUES (1, '1', '00'), "
      "(2, '2', '01')");
  EXPECT_EQ(motore.Righe("UPDATE tabDocumento SET tabDocumento.pagine = 'a, (b) = c', LIN = '02', "
                         "Bib = \"\" WHERE tabDocumento!IDDocumento = 2"),
            QStringList());
  EXPECT_EQ(motore.Righe("select IDDocumento, pagine, LIN, Bib from TabDocumento"),
            (QStringList{"1|1|00|-", "2|a, (b) = c|02|"}));
  EXPECT_EQ(motore.Righe("delete * from TabDocumento where IDDocumento =1"), QStringList());
  EXPECT_EQ(motore.Righe("delete TabDocumento.* from TabDocumento where LIN = '9'"), QStringList());
  EXPECT_EQ(motore.Righe("select IDDocumento from TabDocumento"), QStringList{"2"});
}

// An alias is no column, and an unknown name is no text.
TEST(Traduttore, NomeSconosciutoRestaSconosciuto) {
  Motore motore;
  motore.Sql("ALTER TABLE TabStato DROP COLUMN nuovo");
  const QStringList atteso{"no such column: nuovo"};
  EXPECT_EQ(motore.Righe("select Stato as Nuovo, IDDoc from tabStato, tabFonte, legameDocFonte "
                         "where tabFonte.IDStato = tabStato.IDStato and nuovo = 1"),
            atteso);
  EXPECT_EQ(motore.Righe("select Stato as nuovo from tabStato order by nuovo"), atteso);
  EXPECT_EQ(motore.Righe("select Stato from tabStato where Stato = nuovo"), atteso);
  EXPECT_EQ(motore.Righe("select * from nessuna"), QStringList{"no such table: nessuna"});
}

TEST(Traduttore, RifiutaCioCheNonEIstruzione) {
  for (const char* istruzione :
       {"",
        "select",
        "select * ",
        "select from TabTesto",
        "select * from",
        "select * from where IDTesto = 1",
        "select * from TabTesto where",
        "select * from TabTesto where order by IDTesto",
        "select * from TabTesto order by",
        "select * from TabTesto order IDTesto",
        "select * from TabTesto order by desc",
        "select * from TabTesto, ",
        "select * from TabTesto where testo = \"a",
        "select * from TabTesto where testo = 'dell'anno'",
        "select * from tabrifbibl where Fascicolo = \"1 \"bis\" and Annata = \"",
        "select * from TabTesto where testo = #8/7/1990",
        "select * from TabTesto where [testo = 'a'",
        "select * from TabTesto where [] = 'a'",
        "select * from TabTesto where (IDTesto = 1",
        "select * from TabTesto where IDTesto = 1)",
        "select * from TabTesto where IDTesto = 1) or (1 = 1",
        "select * from TabTesto where IDTesto = 1; delete from TabTesto",
        "select * from TabTesto where IDTesto = {1}",
        "select * from TabTesto where TabTesto. = 1",
        "select * from TabTesto where .testo = 'a'",
        "select * from TabTesto where load_extension('a')",
        "select * from TabTesto inner join LegameDocTesto where IDDoc = 1",
        "select * from TabTesto left join LegameDocTesto on IDDoc = 1",
        "select * from (TabTesto",
        "delete TabTesto where IDTesto = 1",
        "update TabTesto where IDTesto = 1",
        "update TabTesto set testo where IDTesto = 1",
        "update TabTesto set testo = 'a' order by IDTesto",
        "insert into TabTesto values (1, 'a')",
        "drop table TabTesto"}) {
    try {
      const Traduzione traduzione = Tradotta(istruzione);
      // What only the engine can tell it tells itself.
      const QStringList esito = Motore().Sql(traduzione.sql);
      EXPECT_TRUE(!esito.isEmpty() && esito.front().contains("syntax error")) << istruzione;
    } catch (const ErroreEsecuzione& errore) {
      EXPECT_EQ(errore.Numero(), 3075) << istruzione;
      EXPECT_TRUE(errore.Descrizione().endsWith(istruzione)) << istruzione;
    }
  }
}

}  // namespace
}  // namespace torvi
