#include "archive/database.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "archive/collazione.h"
#include "archive/connessione.h"
#include "archive/conversione.h"
#include "archive/corpo_istruzione.h"
#include "archive/corpo_tabella.h"
#include "archive/errore.h"
#include "archive/jet.h"

namespace torvi {
namespace {

constexpr int kAttesaBloccoMs = 2000;
constexpr QByteArrayView kFirmaArchivio("SQLite format 3\0", 16);

bool EIstruzione(const QString& origine) {
  const QString testo = origine.trimmed();
  return testo.startsWith(QLatin1String("select"), Qt::CaseInsensitive) && testo.size() > 6 &&
         !testo.at(6).isLetterOrNumber();
}

void RichiediLeggibile(const QString& percorso) {
  if (!QFile(percorso).open(QIODevice::ReadOnly)) {
    throw ErroreEsecuzione(Errore::PermessoNegato, percorso);
  }
}

std::unique_ptr<SQLite::Database> ApriMotore(const QString& percorso, Accesso accesso) {
  // No connection is used by two threads at once: the engine's own locks would only cost time at
  // every column, and its count of the memory in use, one more lock, at every piece of memory.
  [[maybe_unused]] static const int kSenzaConti = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
  const int modo =
      SQLite::OPEN_NOMUTEX |
      (accesso == Accesso::SolaLettura ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE);
  auto motore = std::make_unique<SQLite::Database>(percorso.toStdString(), modo, kAttesaBloccoMs);
  RegistraFunzioni(motore->getHandle());
  // An archive is always one file, and what is written is on the disk.
  // Pages beyond 2 MB are as soon read again from the system's cache as they are made room for.
  motore->exec("PRAGMA synchronous = FULL; PRAGMA cache_size = -2000");
  motore->exec("SELECT count(*) FROM sqlite_master");
  motore->exec("PRAGMA journal_mode = DELETE");
  return motore;
}

std::unique_ptr<SQLite::Database> ApriJet(const QString& percorso) {
  // The empty name is a private database that the engine keeps in memory and, where it grows, in a
  // temporary file.
  auto motore = std::make_unique<SQLite::Database>(std::string(),
                                                   SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
  RegistraFunzioni(motore->getHandle());
  CaricaJet(percorso, *motore);
  motore->exec("PRAGMA query_only = 1");
  return motore;
}

Errore NumeroApertura(const SQLite::Exception& guasto) {
  switch (guasto.getErrorCode() & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return Errore::DatabaseInUso;
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
      return Errore::PermessoNegato;
    case SQLITE_IOERR:
      return Errore::ErroreDispositivo;
    default:
      return Errore::FormatoNonRiconosciuto;
  }
}

// A write that a kill cut short is taken back before anybody reads: also by who may only read, as
// long as the file itself lets him.
void RiprendiInterrotta(const QString& percorso) {
  // The engine keeps it beside the file that a link leads to.
  const QString vero = QFileInfo(percorso).canonicalFilePath();
  if (QFileInfo(vero + QLatin1String("-journal")).size() == 0) return;
  try {
    (void)ApriMotore(percorso, Accesso::LetturaScrittura);
  } catch (const SQLite::Exception& guasto) {
    const int codice = guasto.getErrorCode() & 0xff;
    if (codice != SQLITE_READONLY && codice != SQLITE_CANTOPEN && codice != SQLITE_PERM) throw;
    throw ErroreEsecuzione::ConDescrizione(
        Errore::PermessoNegato,
        QStringLiteral(
            "Nell'archivio %1 una scrittura è rimasta a metà e va tolta prima di "
            "leggerlo: aprirlo una volta con il permesso di scrivere nella sua cartella.")
            .arg(percorso));
  }
}

}  // namespace

bool EFileArchivio(const QString& percorso) {
  QFile file(percorso);
  return file.open(QIODevice::ReadOnly) && file.read(kFirmaArchivio.size()) == kFirmaArchivio;
}

Database OpenDatabase(const QString& percorso, Accesso accesso) {
  const QFileInfo file(percorso);
  if (!file.exists()) throw ErroreEsecuzione(Errore::DatabaseNonTrovato, percorso);
  if (!file.isFile()) throw ErroreEsecuzione(Errore::FormatoNonRiconosciuto, percorso);
  if (EFileJet(percorso)) {
    return Database(std::make_shared<Connessione>(percorso, ApriJet(percorso)));
  }
  RichiediLeggibile(percorso);
  if (!EFileArchivio(percorso)) {
    throw ErroreEsecuzione(Errore::FormatoNonRiconosciuto, percorso);
  }
  try {
    RiprendiInterrotta(percorso);
    return Database(std::make_shared<Connessione>(percorso, ApriMotore(percorso, accesso)));
  } catch (const SQLite::Exception& guasto) {
    throw ErroreEsecuzione(NumeroApertura(guasto), percorso);
  }
}

QString Letterale(const QString& testo) {
  QString raddoppiato = testo;
  raddoppiato.replace(QLatin1Char('"'), QLatin1String("\"\""));
  return QLatin1Char('"') + raddoppiato + QLatin1Char('"');
}

Database::Database(std::shared_ptr<Connessione> connessione)
    : connessione_(std::move(connessione)) {}

Connessione& Database::Connessa() const {
  if (connessione_ == nullptr) throw ErroreEsecuzione(Errore::OggettoNonImpostato);
  connessione_->RichiediAperta();
  return *connessione_;
}

Recordset Database::OpenRecordset(const QString& origine, const QList<Campo>& parametri) const {
  Connessione& connessione = Connessa();
  if (EIstruzione(origine)) {
    return Recordset(
        std::make_unique<CorpoIstruzione>(connessione.shared_from_this(), origine, parametri));
  }
  return Recordset(std::make_unique<CorpoTabella>(connessione.shared_from_this(), origine));
}

std::vector<Riga> Database::LeggiRighe(const QString& istruzione,
                                       const QList<Campo>& parametri) const {
  Connessione& connessione = Connessa();
  const Connessione::Prestito righe = connessione.Prepara(istruzione);
  connessione.LegaTutti(righe, parametri);
  std::vector<Riga> lette;
  while (connessione.Passo(righe)) {
    std::vector<Campo> valori;
    valori.reserve(righe->colonne->Quante());
    for (std::size_t i = 0; i < righe->colonne->Quante(); ++i) {
      valori.push_back(righe->motore->Leggi(righe->Spostamento() + static_cast<int>(i)));
      if (valori.back().Nullo()) valori.back() = Campo::NullDi(righe->colonne->Testo(i));
    }
    lette.emplace_back(righe->colonne, std::move(valori));
  }
  return lette;
}

int Database::Conta(const QString& origine) const {
  const std::vector<Riga> conto =
      LeggiRighe(QStringLiteral("select count(*) as quante ") + origine);
  return static_cast<int>(conto.front().Fields("quante").Intero());
}

qint64 Database::Execute(const QString& istruzione, const QList<Campo>& parametri) const {
  Connessione& connessione = Connessa();
  return connessione.Esegui(connessione.Prepara(istruzione), parametri);
}

void Database::Close() { Connessa().Chiudi(); }

bool Database::Aperto() const { return connessione_ != nullptr && !connessione_->Chiusa(); }

bool Database::InUnita() const { return Connessa().InUnita(); }

QString Database::Name() const {
  return connessione_ == nullptr ? QString() : connessione_->Percorso();
}

QStringList Database::Tabelle() const { return Connessa().Tabelle(); }

QStringList Database::Colonne(const QString& tabella) const {
  QStringList nomi;
  const NomiColonne& colonne = Connessa().Tabella(tabella).colonne;
  for (std::size_t i = 0; i < colonne.Quante(); ++i) nomi += QString::fromStdString(colonne[i]);
  return nomi;
}

UnitaDiScrittura::UnitaDiScrittura(const Database& database)
    : connessione_(database.Connessa().shared_from_this()) {
  connessione_->IniziaUnita();
}

UnitaDiScrittura::~UnitaDiScrittura() {
  try {
    Concludi();
  } catch (const ErroreEsecuzione&) {
    // The caller already handles the failure that brought it here.
    return;
  }
}

void UnitaDiScrittura::Concludi() {
  if (connessione_ == nullptr) return;
  const auto connessione = std::exchange(connessione_, nullptr);
  connessione->ConcludiUnita();
}

}  // namespace torvi
