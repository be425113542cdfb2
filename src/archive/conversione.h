// Genuine Jet files into archives: every table, column, row, Null, memo and counter.
#pragma once

#include <QString>
#include <functional>

namespace SQLite {
class Database;
}

namespace torvi {

// What is being done, and how many rows of how many.
using Progresso = std::function<void(const QString& cosa, int fatto, int totale)>;

// Writes the new file, verifies it against the old one row by row, and only then gives it its name.
// The indexes that the joins of the system need are added where the old file lacks them, and so are
// the defaults of the keys of a source. `nuovo` must not exist: error 75. A damaged file is error
// 3343, a full disk 61, a failing device 57. Whatever fails, the old file is as it was, no part of
// the new one is left, and the description names the file and says what to do.
void ConvertiJet(const QString& vecchio, const QString& nuovo, const Progresso& progresso = {});
// The archive at `percorso` is converted where it stands; the original stays beside it as
// "<percorso>.jet". An original that is already there: error 75, and nothing is changed. At no
// moment is there less than one whole archive at `percorso`; a conversion that was cut short can be
// started again.
void ConvertiInLoco(const QString& percorso, const Progresso& progresso = {});
// All tables of a Jet file into an empty database, which knows the functions of the system: how
// OpenDatabase reads one without converting it.
void CaricaJet(const QString& percorso, SQLite::Database& motore);

}  // namespace torvi
