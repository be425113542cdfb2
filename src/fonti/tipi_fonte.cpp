#include "fonti/tipi_fonte.h"

#include <array>

namespace torvi {

std::span<const TipoFonte> TipiFonte() {
  static constexpr std::array tipi = {
      TipoFonte{"optInterno", "IT", -1},         TipoFonte{"optInternazionale", "NIT/GEI", 0},
      TipoFonte{"optComunitario", "NIC/GEC", 1}, TipoFonte{"optStraniero", "NS/GS", 2},
      TipoFonte{"optCanonico", "FC", 3},         TipoFonte{"optStorico", "FS", 4}};
  return tipi;
}

std::optional<TipoFonte> TrovaTipoFonte(const QString& TipoFonteScelto) {
  for (const TipoFonte& tipo : TipiFonte()) {
    if (TipoFonteScelto == QLatin1String(tipo.codice)) return tipo;
  }
  return std::nullopt;
}

}  // namespace torvi
