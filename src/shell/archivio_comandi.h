// The commands of the File menu, without their window.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// mnuFileApri: asks for a file and opens it as DbArchivio. True if the command ran to its end and
// the caller is to set caption and menus. Errors go through the trap of the command; on failure
// DbArchivio is what it was.
[[nodiscard]] bool ComandoApri(StatoGlobale& stato, Dialoghi& dialoghi);
// The caption that names the open archive.
[[nodiscard]] QString TitoloArchivio(const QString& percorso);

// mnuFileNuovo: asks for a file and the data of the delivery, and makes the archive. It is not left
// open. True if it was made.
[[nodiscard]] bool ComandoNuovo(StatoGlobale& stato, Dialoghi& dialoghi);

// mnuFileChiudi.
void ComandoChiudi(StatoGlobale& stato);

// mnuFileEsci: asks, and closes DbArchivio whether it is open or not. True if the program is to
// end.
[[nodiscard]] bool ComandoEsci(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
