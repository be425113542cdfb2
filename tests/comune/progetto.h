// Where the files of the project and the genuine Jet files stand that tests read.
#pragma once

#include <QString>

namespace torvi {

// A file or folder of the project, by its path from the root.
[[nodiscard]] QString FileProgetto(const QString& percorso);
// One of the genuine Jet files, or of the tables beside them that tell what an independent reader
// sees in them.
[[nodiscard]] QString FileGenuino(const QString& nome);

}  // namespace torvi
