// What the archive holds of a document, so that a save can tell whether somebody else has changed
// it since it was loaded.
#pragma once

#include <map>

#include "document/documento.h"

namespace torvi {

// By the parts as the operator is told of them: all values of their rows.
[[nodiscard]] std::map<QString, QString> LeggiImpronta(const Database& archivio, qint64 numero);
// The document on screen is the row of its number, as the archive has it now.
void RiconosciArchiviato(Documento& documento);
// The parts that the archive has otherwise than when the document was loaded or saved.
[[nodiscard]] QStringList PartiCambiate(const Documento& documento);

}  // namespace torvi
