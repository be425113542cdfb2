// What the codes of the scheme before 2000 stand for. A run meets the same codes over and over, so
// each is read once.
#pragma once

#include <QHash>

#include "archive/database.h"

namespace torvi {

class Descrizioni1999 {
 public:
  explicit Descrizioni1999(const Database& archivio) : archivio_(archivio) {}

  // "(Descrizione)" of a code at the top, "(Padre: Descrizione)" of any other. A code that is not
  // there, or has no parent: error 3021. The result stays good until the next search.
  [[nodiscard]] const QString& Cerca(const QString& codice);

 private:
  Database archivio_;
  QHash<QString, QString> note_;
};

}  // namespace torvi
