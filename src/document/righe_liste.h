// Lines of the list of responsibilities, and marking the rows of all three lists.
#pragma once

#include "document/documento.h"

namespace torvi {

// "A - " or "C - ", the names; "DEL--" in front of a row marked for deletion.
[[nodiscard]] QString RigaLista(const RigaResponsabilita& riga);
[[nodiscard]] QStringList RigheLista(const std::vector<RigaResponsabilita>& righe);

}  // namespace torvi
