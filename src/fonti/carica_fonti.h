// The sources of a document on their way from the archive to the form.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

// Replaces RigheFonte with the sources of a document. Result: the lines of lstFonte, the text and,
// for all but internal law, the code between asterisks. A dangling key into TabFonteInterna or a
// small table is error 3021; into the other catalogues it leaves the name empty.
[[nodiscard]] QStringList CaricaFonti(StatoGlobale& stato, qint64 idDocumento);

}  // namespace torvi
