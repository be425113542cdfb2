// A row that was read, for as long as it is needed.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "archive/campo.h"
#include "archive/nomi_colonne.h"

namespace torvi {

class Riga {
 public:
  Riga(std::shared_ptr<const NomiColonne> nomi, std::vector<Campo> valori)
      : nomi_(std::move(nomi)), valori_(std::move(valori)) {}

  // As Recordset::Fields; no such column: error 3265.
  [[nodiscard]] const Campo& Fields(std::string_view nome) const {
    return Fields(nomi_->Richiedi(nome));
  }
  // By the place of the column in the statement, from 0.
  [[nodiscard]] const Campo& Fields(int colonna) const {
    return valori_[static_cast<std::size_t>(colonna)];
  }

 private:
  std::shared_ptr<const NomiColonne> nomi_;
  std::vector<Campo> valori_;
};

}  // namespace torvi
