#include "archive/schema.h"

#include <algorithm>

#include "archive/collazione.h"
#include "archive/connessione.h"
#include "archive/errore.h"
#include "archive/file_nuovo.h"

namespace torvi {
namespace {

QString Nome(const QString& nome) { return QStringLiteral("[%1]").arg(nome); }

// The type names decide how the engine keeps a value: one with TEXT in it keeps text as text, also
// where it looks like a number.
QString TipoDichiarato(const Colonna& colonna) {
  switch (colonna.tipo) {
    case TipoColonna::Contatore:
      return QStringLiteral("INTEGER PRIMARY KEY AUTOINCREMENT");
    case TipoColonna::Intero:
      return QStringLiteral("INTEGER");
    case TipoColonna::Testo:
      return colonna.larghezza == 0
                 ? QStringLiteral("TEXT COLLATE ITALIANO")
                 : QStringLiteral("TEXT(%1) COLLATE ITALIANO").arg(colonna.larghezza);
    case TipoColonna::Memo:
      return QStringLiteral("LONGTEXT COLLATE ITALIANO");
    case TipoColonna::Logico:
      return QStringLiteral("BOOLEAN DEFAULT 0");
    case TipoColonna::Data:
      return QStringLiteral("DATETIME COLLATE ITALIANO");
    case TipoColonna::Reale:
      return QStringLiteral("REAL");
  }
  throw ErroreEsecuzione(Errore::ErroreInterno, colonna.nome);
}

QString Dichiarazione(const Colonna& colonna) {
  QString testo = Nome(colonna.nome) + QLatin1Char(' ') + TipoDichiarato(colonna);
  if (!colonna.predefinito.isEmpty()) testo += QLatin1String(" DEFAULT ") + colonna.predefinito;
  return testo;
}

bool EIlNumeroDiRiga(const Tabella& tabella, const Indice& indice) {
  if (indice.nome != QLatin1String("PrimaryKey") || indice.colonne.size() != 1) return false;
  return std::any_of(tabella.colonne.begin(), tabella.colonne.end(), [&](const Colonna& colonna) {
    return colonna.tipo == TipoColonna::Contatore && colonna.nome == indice.colonne.front();
  });
}

QString IstruzioneIndice(const Tabella& tabella, const Indice& indice) {
  QStringList colonne;
  for (const QString& colonna : indice.colonne) colonne += Nome(colonna);
  return QStringLiteral("CREATE %1INDEX %2 ON %3 (%4)")
      .arg(indice.unico ? QStringLiteral("UNIQUE ") : QString(),
           Nome(NomeIndice(tabella.nome, indice.nome)), Nome(tabella.nome),
           colonne.join(QLatin1String(", ")));
}

void Scrivi(const QString& percorso, std::span<const Tabella> tabelle) {
  SQLite::Database database(percorso.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  RegistraFunzioni(database.getHandle());
  database.exec(kPagine);
  database.exec("PRAGMA journal_mode = DELETE");
  database.exec("PRAGMA synchronous = FULL");
  database.exec("PRAGMA application_id = " + std::to_string(kMarchioArchivio));
  SQLite::Transaction transazione(database);
  for (const Tabella& tabella : tabelle) {
    for (const QString& istruzione : IstruzioniTabella(tabella)) {
      database.exec(istruzione.toStdString());
    }
  }
  transazione.commit();
}

}  // namespace

QString NomeIndice(const QString& tabella, const QString& indice) {
  return tabella + QLatin1Char('.') + indice;
}

QStringList IstruzioniTabella(const Tabella& tabella) {
  QStringList colonne;
  for (const Colonna& colonna : tabella.colonne) colonne += Dichiarazione(colonna);
  QStringList istruzioni{QStringLiteral("CREATE TABLE %1 (%2)")
                             .arg(Nome(tabella.nome), colonne.join(QLatin1String(", ")))};
  for (const Indice& indice : tabella.indici) {
    if (!EIlNumeroDiRiga(tabella, indice)) istruzioni += IstruzioneIndice(tabella, indice);
  }
  return istruzioni;
}

void ScriviTabelle(const QString& percorso, std::span<const Tabella> tabelle) {
  try {
    Scrivi(percorso, tabelle);
  } catch (const SQLite::Exception& guasto) {
    throw DaMotore(guasto, percorso);
  }
}

void CreaDatabase(const QString& percorso, std::span<const Tabella> tabelle) {
  FileNuovo file(percorso);
  file.Riempi([&] { ScriviTabelle(file.Percorso(), tabelle); });
  file.Consegna();
}

}  // namespace torvi
