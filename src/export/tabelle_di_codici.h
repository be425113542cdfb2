// The code tables that an export looks up by one of their indexes. A run meets the same few rows
// over and over, so each is sought once and remembered.
#pragma once

#include <string>
#include <unordered_map>

#include "archive/database.h"

namespace torvi {

class TabelleDiCodici {
 public:
  explicit TabelleDiCodici(const Database& archivio) : archivio_(archivio) {}

  // The row with that key. None is no failure yet: reading a column is (error 3021). It stays good
  // until the next search by the same index of the same table.
  [[nodiscard]] const Recordset& Cerca(std::string_view tabella, const Campo& chiave,
                                       std::string_view indice = "PrimaryKey");

 private:
  struct Impronta {
    std::size_t operator()(const Campo::Valore& chiave) const;
  };
  using Righe = std::unordered_map<Campo::Valore, Recordset, Impronta>;
  struct Tabella {
    std::string nome;
    std::string indice;
    Righe righe;
  };
  [[nodiscard]] Tabella& Trova(std::string_view nome, std::string_view indice);

  Database archivio_;
  std::vector<Tabella> tabelle_;
};

}  // namespace torvi
