// The code tables that an export reads by key. A run meets the same few rows over and over, so each
// is sought once and kept until the run ends.
#pragma once

#include <map>
#include <string>

#include "archive/database.h"

namespace torvi {

class TabelleDiCodici {
 public:
  explicit TabelleDiCodici(const Database& archivio) : archivio_(archivio) {}

  // The row with that primary key. None is no failure yet: reading a column is (error 3021).
  [[nodiscard]] const Recordset& Cerca(std::string_view tabella, const Campo& chiave);

 private:
  using Righe = std::map<QString, Recordset>;  // by the key as text, Null as none

  Database archivio_;
  std::map<std::string, Righe, std::less<>> tabelle_;
};

}  // namespace torvi
