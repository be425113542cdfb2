// The master archive and the norm catalogue, made from the rows in dati/.
#pragma once

#include <QString>

namespace torvi {

// Every code table filled, the document tables empty with their counters at the start. The file
// appears only when it is complete. It must not exist: error 75; a fault in a row names file and line.
void CreaMaster(const QString& percorso);
void CreaCatalogo(const QString& percorso);

}  // namespace torvi
