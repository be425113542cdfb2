// The rows of a Jet file on their way into a database, and their comparison once they are there.
// Private to archive/.
#pragma once

#include <SQLiteCpp/Database.h>

#include "archive/conversione.h"
#include "archive/jet.h"

namespace torvi {

// A table as it is made here: what the file says, and of the system's own schema the indexes and
// defaults that the file lacks.
[[nodiscard]] Tabella Completata(Tabella tabella);

// Counts rows over all tables, so that the operator sees one run from 0 to the end.
class Contarighe {
 public:
  // `giri`: how many times all rows pass.
  Contarighe(const LettoreJet& lettore, int giri, Progresso progresso);
  void Tabella(const QString& cosa);
  void Riga();

 private:
  void Mostra() const;
  Progresso progresso_;
  QString cosa_;
  int fatte_ = 0;
  int totale_ = 0;
};

// In one transaction. What the engine refuses is SQLite::Exception, damage of the file error 3343.
void Versa(const LettoreJet& lettore, SQLite::Database& motore, Contarighe& conto);

// Every table, row, value and counter of the file is found in the database, and no row more. The
// name of the first table where it is not so; empty where all is equal.
[[nodiscard]] QString Diversa(const LettoreJet& lettore, SQLite::Database& motore,
                              Contarighe& conto);

}  // namespace torvi
