// The one guard around every command: what no trap of the command takes is shown, and the command
// ends; the program, the open archive and what stands in the forms stay as they are.
#pragma once

#include <functional>

#include "archive/errore.h"
#include "shell/dialoghi.h"

namespace torvi {

// "Errore di run-time 'N': " and the description.
[[nodiscard]] QString TestoErrore(const ErroreEsecuzione& errore);
// True if the command ran to its end.
bool Esegui(Dialoghi& dialoghi, const std::function<void()>& comando);

}  // namespace torvi
