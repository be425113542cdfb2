#include "archive/jet.h"

#include <QJsonArray>
#include <QTemporaryDir>
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
  QString testo = colonna[QLatin1String("name")].toString() + QLatin1Char(' ') +
                  colonna[QLatin1String("type")].toString();
  if (colonna.contains(QLatin1String("chars"))) {
    testo += QLatin1Char(' ') + QString::number(colonna[QLatin1String("chars")].toInt());
  }
  if (colonna[QLatin1String("counter")].toBool()) testo += QLatin1String(" counter");
  testo += QLatin1Char(' ') + colonna[QLatin1String("default")].toString();
  return testo.toStdString();
}

std::string Descrivi(const Colonna& colonna) {
  const QMap<TipoColonna, QString> tipi = {
      {TipoColonna::Contatore, QStringLiteral("LONG counter")},
      {TipoColonna::Intero, QStringLiteral("LONG")},
      {TipoColonna::Testo, QStringLiteral("TEXT %1").arg(colonna.larghezza)},
      {TipoColonna::Memo, QStringLiteral("MEMO")},
      {TipoColonna::Logico, QStringLiteral("BOOLEAN")},
      {TipoColonna::Data, QStringLiteral("SHORT_DATE_TIME")}};
  return QStringLiteral("%1 %2 %3")
      .arg(colonna.nome, tipi[colonna.tipo], colonna.predefinito)
      .toStdString();
}

std::string Descrivi(const QString& nome, const QStringList& colonne, bool unico) {
  return QStringLiteral("%1(%2)%3")
      .arg(nome, colonne.join(QLatin1Char(',')), unico ? QStringLiteral(" unique") : QString())
      .toStdString();
}

void ConfrontaSchema(const Tabella& tabella, const QJsonObject& atteso) {
  Righe colonne;
  Righe attese;
  for (const Colonna& colonna : tabella.colonne) colonne.push_back(Descrivi(colonna));
  for (const auto colonna : atteso[QLatin1String("columns")].toArray()) {
    attese.push_back(Descrivi(colonna.toObject()));
  }
  EXPECT_EQ(colonne, attese);
  std::set<std::string> indici;
  std::set<std::string> attesi;
  for (const Indice& indice : tabella.indici) {
    indici.insert(Descrivi(indice.nome, indice.colonne, indice.unico));
  }
  for (const auto valore : atteso[QLatin1String("indexes")].toArray()) {
    const QJsonObject indice = valore.toObject();
    attesi.insert(Descrivi(indice[QLatin1String("name")].toString(),
                           indice[QLatin1String("columns")].toVariant().toStringList(),
                           indice[QLatin1String("unique")].toBool()));
  }
  EXPECT_EQ(indici, attesi);
}

Righe RigheAttese(const Tabella& tabella, const QJsonArray& righe) {
  Righe attese;
  for (const auto riga : righe) {
    QStringList valori;
    for (const Colonna& colonna : tabella.colonne) valori += Mostra(riga.toObject()[colonna.nome]);
    attese.push_back(valori.join(QLatin1Char('|')).toStdString());
  }
  return attese;
}

using Jet = FileGenuini;

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
      EXPECT_EQ(lettore.UltimoContatore(tabella.nome),
                atteso[QLatin1String("lastCounter")].toInt());
      const Righe lette = Leggi(lettore, tabella.nome);
      EXPECT_EQ(lette.size(), static_cast<std::size_t>(atteso[QLatin1String("rows")].toInt()));
      EXPECT_EQ(lette, RigheAttese(tabella, righe[tabella.nome].toArray()));
    }
  }
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
    const QString genuino = CartellaJet().filePath(QLatin1String(nome));
    const QByteArray contenuto = Byte(genuino);
    const auto righe = LeggiTutto(genuino);
    const QString copia = cartella.filePath(QStringLiteral("troncato.mdb"));
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
  const QString copia = cartella.filePath(QStringLiteral("guasto.mdb"));
  std::mt19937 caso(20010412);
  int rifiutati = 0;
  for (const char* nome :
       {"righe spostate.mdb", "catalogo norme data.mdb", "classificazione.mdb"}) {
    const QByteArray contenuto = Byte(CartellaJet().filePath(QLatin1String(nome)));
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
