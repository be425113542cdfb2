// What the documents of one issue share of their journal reference.
#pragma once

#include <QStringList>
#include <optional>

#include "archive/database.h"

namespace torvi {

struct RiferimentoFascicolo {
  qint16 IDRifBibl = 0;
  QString annoProduzione;
  QString primo;      // field 5
  QString secondo;    // the beginning of field 14, before the pages
  QString volume;     // the value of its last subfield; empty: none
  QString citazione;  // the beginning of field 21, before the pages
  QStringList messaggi = {};
  std::optional<bool> dopo2000 = {};  // nothing where the reference has no date
};

// The documents of one issue come one behind the other, so the last reference is kept.
class LettoreRiferimenti {
 public:
  // No such reference, or no such journal: error 3021.
  [[nodiscard]] const RiferimentoFascicolo& Leggi(const Database& archivio, qint16 idRifBibl,
                                                  const QString& annoProduzione);

 private:
  std::optional<RiferimentoFascicolo> ultimo_;
};

}  // namespace torvi
