// Lines of the list of classifications. Two forms of them differ before an empty descriptor.
#pragma once

#include <QStringList>
#include <vector>

#include "shell/righe.h"

namespace torvi {

// As the load writes it: "; " and the descriptor only where there is one.
[[nodiscard]] QString RigaListaCaricata(const RigaClasse& riga);
// As the classification forms write all lines on closing: "; " always, "DEL--" in front of a row
// marked for deletion.
[[nodiscard]] QStringList RigheLista(const std::vector<RigaClasse>& righe);

}  // namespace torvi
