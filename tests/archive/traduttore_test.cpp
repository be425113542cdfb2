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

// A table that begins with what the engine is given ("+"); then rows and the statement that gives
// them.
void Verifica(Motore& motore, const char* tavola) {
  for (const QStringList& caso : LeggiTavola(tavola)) {
    const std::string istruzione = caso.at(1).toStdString();
    if (caso.at(0) == "+") {
      EXPECT_EQ(motore.Sql(caso.at(1).toUtf8()), QStringList());
    } else {
      EXPECT_EQ(motore.Righe(istruzione.c_str()).join(';').toStdString(), caso.at(0).toStdString())
          << istruzione;
    }
  }
}

TEST(Traduttore, OrdinaComeSonoRiposteLeRighe) {
  Motore motore;
  Verifica(motore, "traduttore_ordine.txt");
}

TEST(Traduttore, ConfrontaComeIlDialetto) {
  Motore motore;
  Verifica(motore, "traduttore_confronti.txt");
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
