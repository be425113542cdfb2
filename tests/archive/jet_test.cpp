#include "archive/jet.h"

#include <QJsonArray>
#include <QTemporaryDir>
#include <limits>
#include <random>
#include <set>

#include "archive/dati_jet.h"
#include "archive/errore.h"

namespace torvi {
namespace {

using namespace prova;

Righe Leggi(const LettoreJet& lettore, const QString& tabella) {
  Righe righe;
  lettore.LeggiRighe(tabella,
                     [&](const std::vector<Campo>& riga) { righe.push_back(Mostra(riga)); });
  return righe;
}

QMap<QString, Righe> LeggiTutto(const QString& percorso) {
  const LettoreJet lettore(percorso);
  QMap<QString, Righe> tutto;
  for (const Tabella& tabella : lettore.Tabelle()) {
    tutto[tabella.nome] = Leggi(lettore, tabella.nome);
  }
  return tutto;
}

// "TEXT 255 default 0", as both sides tell a column.
std::string Descrivi(const QJsonObject& colonna) {
  QString testo = colonna["name"].toString() + QLatin1Char(' ') + colonna["type"].toString();
  if (colonna.contains("chars")) {
    testo += QLatin1Char(' ') + QString::number(colonna["chars"].toInt());
  }
  if (colonna["counter"].toBool()) testo += " counter";
  testo += QLatin1Char(' ') + colonna["default"].toString();
  return testo.toStdString();
}

std::string Descrivi(const Colonna& colonna) {
  const QMap<TipoColonna, QString> tipi = {
      {TipoColonna::Contatore, "LONG counter"},
      {TipoColonna::Intero, "LONG"},
      {TipoColonna::Testo, QStringLiteral("TEXT %1").arg(colonna.larghezza)},
      {TipoColonna::Memo, "MEMO"},
      {TipoColonna::Logico, "BOOLEAN"},
      {TipoColonna::Data, "SHORT_DATE_TIME"}};
  return QStringLiteral("%1 %2 %3")
      .arg(colonna.nome, tipi[colonna.tipo], colonna.predefinito)
      .toStdString();
}

std::string Descrivi(const QString& nome, const QStringList& colonne, bool unico) {
  return QStringLiteral("%1(%2)%3")
      .arg(nome, colonne.join(','), unico ? " unique" : QString())
      .toStdString();
}

void ConfrontaSchema(const Tabella& tabella, const QJsonObject& atteso) {
  Righe colonne;
  Righe attese;
  for (const Colonna& colonna : tabella.colonne) colonne.push_back(Descrivi(colonna));
  for (const auto colonna : atteso["columns"].toArray()) {
    attese.push_back(Descrivi(colonna.toObject()));
  }
  EXPECT_EQ(colonne, attese);
  std::set<std::string> indici;
  std::set<std::string> attesi;
  for (const Indice& indice : tabella.indici) {
    indici.insert(Descrivi(indice.nome, indice.colonne, indice.unico));
  }
  for (const auto valore : atteso["indexes"].toArray()) {
    const QJsonObject indice = valore.toObject();
    attesi.insert(Descrivi(indice["name"].toString(), indice["columns"].toVariant().toStringList(),
                           indice["unique"].toBool()));
  }
  EXPECT_EQ(indici, attesi);
}

class Jet : public testing::Test {};

TEST_F(Jet, EveryTableAndRowIsAsTheIndependentReaderSeesIt) {
  ASSERT_GE(FileJet().size(), 7);
  for (const QString& mdb : FileJet()) {
    SCOPED_TRACE(qPrintable(mdb));
    const QJsonObject righe = Atteso(mdb, ".json");
    const QJsonObject schema = Atteso(mdb, ".schema.json");
    const LettoreJet lettore(CartellaJet().filePath(mdb));
    ASSERT_EQ(lettore.Tabelle().size(), static_cast<std::size_t>(schema.size()));
    for (const Tabella& tabella : lettore.Tabelle()) {
      SCOPED_TRACE(qPrintable(tabella.nome));
      const QJsonObject atteso = schema[tabella.nome].toObject();
      ConfrontaSchema(tabella, atteso);
      EXPECT_EQ(lettore.UltimoContatore(tabella.nome), atteso["lastCounter"].toInt());
      const Righe lette = Leggi(lettore, tabella.nome);
      EXPECT_EQ(lette.size(), static_cast<std::size_t>(atteso["rows"].toInt()));
      QStringList colonne;
      for (const Colonna& colonna : tabella.colonne) colonne += colonna.nome;
      EXPECT_EQ(lette, RigheAttese(colonne, righe[tabella.nome].toArray()));
    }
  }
}

template <typename T>
QByteArray Ottetti(T numero) {
  return {reinterpret_cast<const char*>(&numero), sizeof numero};
}

TEST_F(Jet, DatesWithTimesAndFromBeforeTheFirst) {
  struct Caso {
    double giorni;
    const char* testo;  // empty: no date
  };
  const double nessuno = std::numeric_limits<double>::quiet_NaN();
  const QByteArray contenuto = Byte(CartellaJet().filePath("righe spostate.mdb"));
  const QByteArray vera = Ottetti(-16278.0);
  ASSERT_GT(contenuto.count(vera), 0);
  const QTemporaryDir cartella;
  const QString copia = cartella.filePath("date.mdb");
  for (const Caso& caso :
       {Caso{0, "30/12/1899"}, Caso{0.5, "30/12/1899 12:00:00"}, Caso{-1.25, "29/12/1899 06:00:00"},
        Caso{36526.99999, "01/01/2000 23:59:59"}, Caso{36526.999998, "02/01/2000"},
        Caso{-16278.75, "06/06/1855 18:00:00"}, Caso{-657434, "01/01/0100"},
        Caso{2958465.5, "31/12/9999 12:00:00"}, Caso{-657435, ""}, Caso{2958466, ""},
        Caso{nessuno, ""}}) {
    SCOPED_TRACE(caso.testo);
    ScriviByte(copia, QByteArray(contenuto).replace(vera, Ottetti(caso.giorni)));
    const LettoreJet lettore(copia);
    QString letta;
    const auto leggi = [&] {
      lettore.LeggiRighe("Righe", [&](const std::vector<Campo>& riga) {
        if (riga[0] == Campo(5)) letta = riga[3].Testo();
      });
    };
    EXPECT_EQ(NumeroErrore(leggi), *caso.testo == '\0' ? 3343 : 0);
    EXPECT_EQ(letta.toStdString(), caso.testo);
  }
}

// Where the type of a column stands: the description of the only table that has so many columns.
qsizetype PostoDelTipo(const QByteArray& contenuto, int colonne, int quale) {
  for (qsizetype pagina = 20 * 4096; pagina < contenuto.size(); pagina += 4096) {
    if (contenuto[pagina] == 2 && contenuto[pagina + 45] == colonne) {
      return pagina + 63 + 12 * contenuto[pagina + 51] + 25 * quale;
    }
  }
  return -1;
}

// No genuine file at hand has these types: columns of other types are read as if they had them.
TEST_F(Jet, EveryTypeOfColumnIsRead) {
  struct Caso {
    const char* file;
    const char* tabella;
    int colonne, colonna, tipo;
    std::size_t riga;
    const char* valore;
  };
  const QTemporaryDir cartella;
  const QString copia = cartella.filePath("tipi.mdb");
  for (const Caso& caso : {
           Caso{"chiavi testo.mdb", "Chiavi", 3, 2, 2, 3, "255"},
           Caso{"chiavi testo.mdb", "Chiavi", 3, 2, 3, 5, "-1"},
           Caso{"chiavi testo.mdb", "Chiavi", 3, 0, 6, 3, "5.60519385729927e-45"},
           Caso{"righe spostate.mdb", "Righe", 5, 3, 5, 3, "-455319749738784"},
           Caso{"righe spostate.mdb", "Righe", 5, 3, 7, 3, "-16278"},
           Caso{"righe spostate.mdb", "Righe", 5, 1, 9, 0, "\"fffe726967612031"},
           Caso{"catalogo norme.mdb", "tabCatalogoRidotta", 7, 0, 11, 0,
                "\"fffe5374617475746f20646569206c61766f7261746f7269"},
           Caso{"catalogo norme.mdb", "tabCatalogoRidotta", 7, 5, 15, 0,
                "\"{2E6CFEFF-3220-2030-6D61-6767696F2031}"},
           Caso{"catalogo norme.mdb", "tabCatalogoRidotta", 7, 5, 16, 0,
                "\"-4277635217857316230765957884030963.7231"},
       }) {
    SCOPED_TRACE(testing::Message() << caso.file << ' ' << caso.tipo);
    QByteArray contenuto = Byte(CartellaJet().filePath(caso.file));
    contenuto[PostoDelTipo(contenuto, caso.colonne, caso.colonna)] = static_cast<char>(caso.tipo);
    ScriviByte(copia, contenuto);
    const LettoreJet lettore(copia);
    Righe valori;
    lettore.LeggiRighe(caso.tabella, [&](const std::vector<Campo>& riga) {
      valori.push_back(Mostra(riga[caso.colonna]).toStdString());
    });
    ASSERT_GT(valori.size(), caso.riga);
    EXPECT_EQ(valori[caso.riga], caso.valore);
  }
}

QByteArray Breve(qsizetype numero) { return Ottetti(static_cast<quint16>(numero)); }

QByteArray Unicode(const QString& testo) {
  return {reinterpret_cast<const char*>(testo.utf16()), testo.size() * 2};
}

// The default of a column among the table's properties; `valore` at the end.
QByteArray Proprieta(const QString& colonna, const QString& valore) {
  const QByteArray nome = Unicode(colonna);
  const QByteArray testo = Unicode(valore);
  return Breve(nome.size() + 6) + Breve(0) + Breve(nome.size()) + nome + Breve(testo.size() + 8) +
         QByteArray("\x01\x0c\0\0", 4) + Breve(testo.size()) + testo;
}

TEST_F(Jet, DefaultsAreKeptAsLiterals) {
  struct Caso {
    const char* valore;
    const char* letterale;
  };
  const QByteArray contenuto = Byte(CartellaJet().filePath("consegna.mdb"));
  const QByteArray vera = Proprieta("IDClasse2000-D", "0");
  ASSERT_EQ(contenuto.count(vera), 1);
  const QTemporaryDir cartella;
  const QString copia = cartella.filePath("predefiniti.mdb");
  for (const Caso& caso :
       {Caso{"\"it's\"", "'it''s'"}, Caso{"=\"a\"\"b\"", "'a\"b'"}, Caso{"\"\"", "''"},
        Caso{"\"", ""}, Caso{"-3.5", "-3.5"}, Caso{"= 12", "12"}, Caso{"1e5", ""},
        Caso{"True", "1"}, Caso{"=yes", "1"}, Caso{"False", "0"}, Caso{"No", "0"},
        Caso{"Date()", ""}}) {
    SCOPED_TRACE(caso.valore);
    const QString valore = QString::fromUtf8(caso.valore).leftJustified(10);
    const QByteArray altra = Proprieta("Check", valore);
    ASSERT_EQ(altra.size(), vera.size());
    ScriviByte(copia, QByteArray(contenuto).replace(vera, altra));
    const LettoreJet lettore(copia);
    for (const Tabella& tabella : lettore.Tabelle()) {
      for (const Colonna& colonna : tabella.colonne) {
        const bool questa = colonna.nome == "Check";
        EXPECT_EQ(colonna.predefinito.toStdString(), questa ? caso.letterale : "");
      }
    }
  }
  // What cannot be made out is no reason to refuse a file whose rows are whole.
  ScriviByte(copia, QByteArray(contenuto).replace(vera, QByteArray(vera.size(), '\xff')));
  EXPECT_EQ(LeggiTutto(copia), LeggiTutto(CartellaJet().filePath("consegna.mdb")));
}

// Reads a damaged file. Either it reads, or error 3343 names it; the rows read, none after an
// error.
QMap<QString, Righe> LeggiDanneggiato(const QString& percorso) {
  try {
    return LeggiTutto(percorso);
  } catch (const ErroreEsecuzione& errore) {
    EXPECT_TRUE(errore.E(Errore::FormatoNonRiconosciuto)) << errore.what();
    EXPECT_TRUE(errore.Descrizione().contains(percorso)) << errore.what();
    return {};
  }
}

TEST_F(Jet, ATruncatedFileIsRefusedUnlessItLostNoRow) {
  const QTemporaryDir cartella;
  for (const char* nome : {"righe spostate.mdb", "consegna.mdb"}) {
    const QString genuino = CartellaJet().filePath(nome);
    const QByteArray contenuto = Byte(genuino);
    const auto righe = LeggiTutto(genuino);
    const QString copia = cartella.filePath("troncato.mdb");
    int rifiutati = 0;
    QList<qsizetype> lunghezze = {0, 1, 4, 19, 20, 21, 4095, 4096, 4097, contenuto.size() - 1};
    for (qsizetype n = 8192; n < contenuto.size(); n += 4096) lunghezze += n;
    for (const qsizetype lunghezza : lunghezze) {
      SCOPED_TRACE(lunghezza);
      ScriviByte(copia, contenuto.first(lunghezza));
      const auto lette = LeggiDanneggiato(copia);
      EXPECT_TRUE(lette.isEmpty() || lette == righe);
      if (lette.isEmpty()) ++rifiutati;
    }
    // Only pages of indexes and free ones can be missed at the end of these files.
    EXPECT_GT(rifiutati, lunghezze.size() - 16);
  }
}

TEST_F(Jet, FlippedBitsNeverCrashTheReader) {
  const QTemporaryDir cartella;
  const QString copia = cartella.filePath("guasto.mdb");
  std::mt19937 caso(20010412);
  int rifiutati = 0;
  for (const char* nome :
       {"righe spostate.mdb", "catalogo norme data.mdb", "classificazione.mdb"}) {
    const QByteArray contenuto = Byte(CartellaJet().filePath(nome));
    for (int i = 0; i < 150; ++i) {
      SCOPED_TRACE(i);
      QByteArray guasto = contenuto;
      // Half of the hits fall where pages begin, that is on what points elsewhere.
      for (unsigned colpi = 1 + caso() % 4; colpi > 0; --colpi) {
        const auto pagina = static_cast<qsizetype>(caso() % (contenuto.size() / 4096)) * 4096;
        const auto posto = static_cast<qsizetype>(caso() % (caso() % 2 == 0 ? 128 : 4096));
        guasto[pagina + posto] = static_cast<char>(guasto[pagina + posto] ^ (1 << caso() % 8));
      }
      ScriviByte(copia, guasto);
      if (LeggiDanneggiato(copia).isEmpty()) ++rifiutati;
    }
  }
  EXPECT_GT(rifiutati, 60);
}

}  // namespace
}  // namespace torvi
