// The rows that the two writers of sources read.
#pragma once

#include "export/fonte_letta.h"
#include "export/legami_in_ordine.h"

namespace torvi {

// The sources of a document, in the order of its links.
[[nodiscard]] std::vector<FonteLetta> FontiDocumento(LegamiInOrdine& legami, qint64 idDoc);

}  // namespace torvi
