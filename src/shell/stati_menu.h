// Which menu entries can be used in which phase of the program.
#pragma once

#include <array>
#include <span>

namespace torvi {

enum class FaseMenu { NessunArchivio, ArchivioAperto, DopoNuovo };

struct StatoMenu {
  const char* controllo;
  std::array<bool, 3> abilitato;  // by FaseMenu
};

// Entries that are not listed are always enabled.
[[nodiscard]] std::span<const StatoMenu> StatiMenu();

}  // namespace torvi
