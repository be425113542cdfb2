// The kinds of law that a new source is chosen from, and the entry form that serves each.
#pragma once

#include <QString>
#include <optional>
#include <span>

namespace torvi {

struct TipoFonte {
  const char* opzione;  // its option button on frmSceltaTipoFonte
  const char* codice;   // what TipoFonteScelto holds
  int scheda;           // tab of the form of other law; negative: the form of internal law
};

// In the order in which the option buttons are tested.
[[nodiscard]] std::span<const TipoFonte> TipiFonte();
// Empty where nothing was chosen.
[[nodiscard]] std::optional<TipoFonte> TrovaTipoFonte(const QString& TipoFonteScelto);

}  // namespace torvi
