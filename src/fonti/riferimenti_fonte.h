// The names of a source as keys: what the search for an equal row and the writing of a new one have
// in common.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

struct RiferimentiFonte {
  std::optional<qint64> catalogo;                    // none where the kind has no catalogue
  std::vector<std::pair<const char*, qint64>> nomi;  // column of TabFonte, key
};

// In the order of look-up. A name that is new may be asked about and added; one that the operator
// refuses is left out. A name that a catalogue or a fixed table lacks is error 3021.
[[nodiscard]] RiferimentiFonte CercaRiferimenti(StatoGlobale& stato, Dialoghi& dialoghi,
                                                const RigaFonte& riga);

}  // namespace torvi
