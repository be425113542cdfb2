// The login that stands in front of the restricted commands.
#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <chrono>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Asks anew each time and sets LoginRiservato. Without a good login `rifiuto` is shown. Result:
// whether the command may go on.
[[nodiscard]] bool AccessoRiservato(StatoGlobale& stato, Dialoghi& dialoghi,
                                    const QString& rifiuto);

// The wrong passwords in a row. They outlive the form: opening it again does not shorten a pause.
struct PasswordErrate {
  int quante = 0;
  QDeadlineTimer attesa;
};
// How long the login waits after so many wrong passwords in a row: not after the first slips, then
// twice as long each time, a minute at most.
[[nodiscard]] std::chrono::seconds PausaDopo(int errate);

}  // namespace torvi
