// What the documents of one issue share of their journal reference.
#pragma once

#include <QStringList>
#include <optional>

#include "export/lettore_fascicoli.h"

namespace torvi {

struct RiferimentoFascicolo {
  QString primo;      // field 5
  QString secondo;    // the beginning of field 14, before the pages
  QString volume;     // the value of its last subfield; empty: none
  QString citazione;  // the beginning of field 21, before the pages
  QStringList messaggi = {};
  std::optional<bool> dopo2000 = {};  // nothing where the reference has no date
};

// Of a row that joins reference and journal; none: error 3021.
[[nodiscard]] RiferimentoFascicolo ComponiRiferimento(const Recordset& riga,
                                                      const QString& annoProduzione);
using LettoreRiferimenti = LettoreFascicoli<RiferimentoFascicolo, ComponiRiferimento>;

}  // namespace torvi
