#include "archive/istruzione_motore.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace torvi {

IstruzioneMotore::IstruzioneMotore(const SQLite::Database& motore, const std::string& sql) {
  sqlite3_stmt* istruzione = nullptr;
  const int esito =
      sqlite3_prepare_v3(motore.getHandle(), sql.c_str(), static_cast<int>(sql.size()),
                         SQLITE_PREPARE_PERSISTENT, &istruzione, nullptr);
  if (esito != SQLITE_OK) throw SQLite::Exception(motore.getHandle(), esito);
  istruzione_.reset(istruzione);
}

void IstruzioneMotore::Chiusura::operator()(sqlite3_stmt* istruzione) const noexcept {
  sqlite3_finalize(istruzione);
}

void IstruzioneMotore::Controlla(int esito) const {
  if (esito == SQLITE_OK) return;
  throw SQLite::Exception(sqlite3_db_handle(istruzione_.get()), esito);
}

void IstruzioneMotore::Lega(int posizione, const Campo& valore) {
  sqlite3_stmt* const istruzione = istruzione_.get();
  if (const auto* intero = std::get_if<qint64>(&valore.Grezzo())) {
    Controlla(sqlite3_bind_int64(istruzione, posizione, *intero));
  } else if (const auto* reale = std::get_if<double>(&valore.Grezzo())) {
    Controlla(sqlite3_bind_double(istruzione, posizione, *reale));
  } else if (const auto* testo = std::get_if<QString>(&valore.Grezzo())) {
    const QByteArray byte = testo->toUtf8();
    Controlla(sqlite3_bind_text64(istruzione, posizione, byte.constData(),
                                  static_cast<sqlite3_uint64>(byte.size()), SQLITE_TRANSIENT,
                                  SQLITE_UTF8));
  } else {
    Controlla(sqlite3_bind_null(istruzione, posizione));
  }
}

bool IstruzioneMotore::Passo() {
  const int esito = sqlite3_step(istruzione_.get());
  if (esito == SQLITE_ROW) return true;
  if (esito == SQLITE_DONE) return false;
  throw SQLite::Exception(sqlite3_db_handle(istruzione_.get()), esito);
}

void IstruzioneMotore::Azzera() noexcept {
  sqlite3_reset(istruzione_.get());
  sqlite3_clear_bindings(istruzione_.get());
}

void IstruzioneMotore::Esegui() {
  while (Passo()) {
  }
  sqlite3_reset(istruzione_.get());
}

Campo IstruzioneMotore::Leggi(int colonna) const {
  // The value itself, since each question about a column goes through the statement again. The
  // engine allows it where no other thread has the connection.
  sqlite3_value* const valore = sqlite3_column_value(istruzione_.get(), colonna);
  switch (sqlite3_value_type(valore)) {
    case SQLITE_INTEGER:
      return Campo(static_cast<qint64>(sqlite3_value_int64(valore)));
    case SQLITE_FLOAT:
      return Campo(sqlite3_value_double(valore));
    case SQLITE_NULL:
      return {};
    default: {
      const auto* byte = reinterpret_cast<const char*>(sqlite3_value_text(valore));
      return Campo(QString::fromUtf8(byte, sqlite3_value_bytes(valore)));
    }
  }
}

int IstruzioneMotore::NumeroColonne() const { return sqlite3_column_count(istruzione_.get()); }

const char* IstruzioneMotore::NomeColonna(int colonna) const {
  return sqlite3_column_name(istruzione_.get(), colonna);
}

}  // namespace torvi
