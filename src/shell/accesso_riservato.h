// The login that stands in front of the restricted commands.
#pragma once

#include <QString>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Asks anew each time and sets LoginRiservato. Without a good login `rifiuto` is shown. Result:
// whether the command may go on.
[[nodiscard]] bool AccessoRiservato(StatoGlobale& stato, Dialoghi& dialoghi,
                                    const QString& rifiuto);

}  // namespace torvi
