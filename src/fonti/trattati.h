// The treaties of the archive: their list, their search, and what a citation takes from one.
#pragma once

#include <QStringList>

#include "archive/database.h"
#include "archive/recordset.h"
#include "shell/condizione_parole.h"

namespace torvi {

struct Trattato {
  QString nit;
  QString fonte;
  QString numero;
  QString descrizione;
  QString giorno;  // without leading zero
  QString mese;    // Italian name
  QString anno;
};

// The lines of lstNIT, "idnit) fonte": all rows of the open table, or those that a search finds.
[[nodiscard]] QStringList ElencaNIT(Recordset& tabNIT);
[[nodiscard]] QStringList CercaNIT(const Database& archivio, ModoCampo modo, const QString& parole);
// The treaty of such a line. Without ") ": error 5; no number before it: 13; no such row: 3021.
[[nodiscard]] Trattato LeggiTrattato(const Database& archivio, const QString& linea);

}  // namespace torvi
