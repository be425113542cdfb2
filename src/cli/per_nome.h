// Tables whose rows are chosen by a word of the command line.
#pragma once

#include <algorithm>

#include "cli/comando.h"

namespace torvi {

// The row of that name. None: ErroreUso.
template <typename Righe>
[[nodiscard]] const auto& PerNome(const Righe& righe, const QString& nome) {
  const auto riga =
      std::ranges::find_if(righe, [&](const auto& una) { return nome == QLatin1String(una.nome); });
  if (riga == std::ranges::end(righe)) {
    throw ErroreUso{QStringLiteral("non si conosce \"%1\"").arg(nome)};
  }
  return *riga;
}

}  // namespace torvi
