// Which control functions a centre has used on a delivery, for the supervisor who accepts it.
#pragma once

#include <QString>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// A head line and a line for each function used, parted by CR LF.
[[nodiscard]] QString FunzioniUsate(const Database& archivio);
// The restricted command: the login, then the viewer.
void ControllaUso(StatoGlobale& stato, Dialoghi& dialoghi);

}  // namespace torvi
