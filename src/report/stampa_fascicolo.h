// What the documents of one issue share of the journal reference that an RTF print shows.
#pragma once

#include <optional>

#include "archive/database.h"

namespace torvi {

struct FascicoloStampa {
  qint16 IDRifBibl = 0;
  QString annoProduzione;
  QString primo;                      // the first coded line
  QString secondo;                    // the second up to the pages
  QString volume;                     // the value at its end; empty: none
  QString esteso;                     // the reading form up to the pages
  std::optional<bool> dopo2000 = {};  // nothing where the reference has no date
};

// The documents of one issue come one behind the other, so the last reference is kept.
class LettoreFascicoli {
 public:
  // No such reference, or no such journal: error 3021.
  [[nodiscard]] const FascicoloStampa& Leggi(const Database& archivio, qint16 idRifBibl,
                                             const QString& annoProduzione);

 private:
  std::optional<FascicoloStampa> ultimo_;
};

}  // namespace torvi
