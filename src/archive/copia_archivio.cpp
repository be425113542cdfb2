#include "archive/copia_archivio.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <memory>

#include "archive/collazione.h"
#include "archive/connessione.h"

namespace torvi {

namespace {

constexpr int kAttesaMs = 2000;
constexpr int kLarghezzaGenuina = 255;

// Failures of `lavoro` on the file name it and not a statement.
template <typename Lavoro>
auto ColMotore(const QString& percorso, Lavoro lavoro) {
  try {
    // Opened for writing, so that a journal that a kill left is rolled back; nothing is written.
    SQLite::Database motore(percorso.toStdString(), SQLite::OPEN_READWRITE, kAttesaMs);
    RegistraFunzioni(motore.getHandle());
    return lavoro(motore);
  } catch (const SQLite::Exception& guasto) {
    const int codice = guasto.getErrorCode() & 0xff;
    if (codice == SQLITE_BUSY) throw ErroreEsecuzione(Errore::DatabaseInUso, percorso);
    throw DaMotore(guasto, percorso);
  }
}

}  // namespace

void CopiaArchivio(const QString& origine, const FileNuovo& nuovo) {
  if (!QFileInfo(origine).isFile()) throw ErroreEsecuzione(Errore::FileNonTrovato, origine);
  ColMotore(origine, [&](SQLite::Database& motore) {
    // Read under the engine's lock, page by page as they are on disk: a copy is the same bytes.
    const SQLite::Transaction lettura(motore);
    motore.exec("SELECT count(*) FROM sqlite_master");
    sqlite3_int64 misura = 0;
    const std::unique_ptr<unsigned char, void (*)(void*)> byte(
        sqlite3_serialize(motore.getHandle(), "main", &misura, 0), sqlite3_free);
    if (byte == nullptr) throw ErroreEsecuzione(Errore::ErroreDispositivo, origine);
    nuovo.ScriviByte(QByteArrayView(byte.get(), static_cast<qsizetype>(misura)));
  });
  QFile::setPermissions(nuovo.Percorso(), QFile::permissions(origine) | QFile::WriteOwner);
}

void RichiediIntegro(const QString& percorso) {
  ColMotore(percorso, [&](SQLite::Database& motore) {
    SQLite::Statement esame(motore, "PRAGMA integrity_check(1)");
    if (esame.executeStep() && esame.getColumn(0).getString() == "ok") return;
    throw ErroreEsecuzione::ConDescrizione(
        Errore::FormatoNonRiconosciuto,
        QStringLiteral("L'archivio scritto come %1 è risultato danneggiato. Controllare il disco e "
                       "l'archivio da cui è copiato, e riprovare.")
            .arg(percorso));
  });
}

int LarghezzaColonna(const QString& archivio, const char* tabella, const char* colonna) {
  static const QRegularExpression kLarghezza(QStringLiteral("\\((\\d+)\\)"));
  return ColMotore(archivio, [&](SQLite::Database& motore) {
    SQLite::Statement tipo(motore,
                           "SELECT type FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE");
    tipo.bind(1, tabella);
    tipo.bind(2, colonna);
    const QString detto =
        tipo.executeStep() ? QString::fromStdString(tipo.getColumn(0).getString()) : QString();
    const QRegularExpressionMatch larghezza = kLarghezza.match(detto);
    return larghezza.hasMatch() ? larghezza.captured(1).toInt() : kLarghezzaGenuina;
  });
}

}  // namespace torvi
