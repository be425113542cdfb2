// Tables, columns and indexes looked up by their names, whose case is ignored.
#pragma once

#include <QString>
#include <algorithm>

namespace torvi {

// The element whose `nome` it is; nullptr where there is none.
template <typename Elenco>
[[nodiscard]] auto PerNome(Elenco& elenco, const QString& nome) {
  const auto trovato = std::find_if(elenco.begin(), elenco.end(), [&](const auto& uno) {
    return uno.nome.compare(nome, Qt::CaseInsensitive) == 0;
  });
  return trovato == elenco.end() ? nullptr : &*trovato;
}

}  // namespace torvi
