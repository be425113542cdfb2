// Which column of an archive points to the key of which table.
#pragma once

#include <span>

namespace torvi {

struct Legame {
  const char* tabella;
  const char* colonna;
  const char* destinazione;
  const char* chiave;
  bool ammetteZero;          // 0, as Null, stands for no row
  const char* quando = "1";  // the rows in which it points there, as a condition of SQL
};

[[nodiscard]] std::span<const Legame> LegamiArchivio();

}  // namespace torvi
