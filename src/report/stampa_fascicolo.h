// What the documents of one issue share of the journal reference that an RTF print shows.
#pragma once

#include <optional>

#include "export/lettore_fascicoli.h"

namespace torvi {

struct FascicoloStampa {
  QString primo;                      // the first coded line
  QString secondo;                    // the second up to the pages
  QString volume;                     // the value at its end; empty: none
  QString esteso;                     // the reading form up to the pages
  std::optional<bool> dopo2000 = {};  // nothing where the reference has no date
};

// Of a row that joins reference and journal; none: error 3021.
[[nodiscard]] FascicoloStampa ComponiFascicolo(const Recordset& riga,
                                               const QString& annoProduzione);
using LettoreFascicoliStampa = LettoreFascicoli<FascicoloStampa, ComponiFascicolo>;

}  // namespace torvi
