// Genuine Jet files into archives: every table, column, row, Null, memo and counter.
#pragma once

#include <QString>
#include <functional>

struct sqlite3;

namespace torvi {

using Progresso = std::function<void(const QString& cosa, int fatto, int totale)>;

// Writes the new file, verifies it against the old one row by row, and only then gives it its name.
// The indexes that the joins of the system need are added where the old file lacks them. `nuovo` must
// not exist: error 75. The old file is not touched.
void ConvertiJet(const QString& vecchio, const QString& nuovo, const Progresso& progresso = {});
// The archive at `percorso` is converted where it stands; the original stays beside it as
// "<percorso>.jet". An original that is already there: error 75, and nothing is changed.
void ConvertiInLoco(const QString& percorso, const Progresso& progresso = {});
// All tables of a Jet file into an empty database: how OpenDatabase reads one without converting it.
void CaricaJet(const QString& percorso, sqlite3* motore);

}  // namespace torvi
