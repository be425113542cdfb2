// One prepared statement of the engine, and the values that go in and out of it. The wrapper
// library's own makes an object for every value that is read, which an export pays for millions of
// times. Private to archive/.
#pragma once

#include <SQLiteCpp/Database.h>

#include <memory>
#include <string>

#include "archive/campo.h"

struct sqlite3_stmt;

namespace torvi {

// Failures are SQLite::Exception.
class IstruzioneMotore {
 public:
  IstruzioneMotore(const SQLite::Database& motore, const std::string& sql);

  // Positions of parameters count from 1, columns from 0.
  void Lega(int posizione, const Campo& valore);
  // The next row; false at the end.
  bool Passo();
  // Ready to run again, without values.
  void Azzera() noexcept;
  // Runs a statement that gives no rows, and leaves it ready with its values.
  void Esegui();
  [[nodiscard]] Campo Leggi(int colonna) const;
  [[nodiscard]] int NumeroColonne() const;
  [[nodiscard]] const char* NomeColonna(int colonna) const;

 private:
  struct Chiusura {
    void operator()(sqlite3_stmt* istruzione) const noexcept;
  };
  void Controlla(int esito) const;

  std::unique_ptr<sqlite3_stmt, Chiusura> istruzione_;
};

}  // namespace torvi
