// The rows that the writers of sources read.
#pragma once

#include "archive/database.h"

namespace torvi {

// The sources of a document, in the order of its links.
[[nodiscard]] Recordset FontiDocumento(const Database& archivio, qint64 idDoc);
// The row with that key. None is no failure yet: reading a column is (error 3021).
[[nodiscard]] Recordset CercaPerChiave(const Database& archivio, const QString& tabella,
                                       const Campo& chiave);

}  // namespace torvi
