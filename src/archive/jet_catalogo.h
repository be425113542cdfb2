// The list of tables in a Jet file. Private to archive/.
#pragma once

#include <map>
#include <vector>

#include "archive/jet_pagine.h"

namespace torvi::jet {

struct VoceCatalogo {
  QString nome;
  std::uint32_t pagina = 0;
  std::map<QString, QString> predefiniti;  // column to default, as a literal
};

// User tables in the order of the file. A damaged catalogue, or a name twice in it: error 3343.
[[nodiscard]] std::vector<VoceCatalogo> LeggiCatalogo(Pagine& pagine);

}  // namespace torvi::jet
