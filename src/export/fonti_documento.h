// The rows that the two writers of sources read.
#pragma once

#include "archive/database.h"

namespace torvi {

// The sources of a document, in the order of its links.
[[nodiscard]] std::vector<Riga> FontiDocumento(const Database& archivio, qint64 idDoc);

}  // namespace torvi
