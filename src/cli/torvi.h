// The command line of torvi: finds the command, checks what it is given, runs it under the guard.
#pragma once

#include <QStringList>
#include <QTextStream>

namespace torvi {

// `argomenti` with the program's name first. Result: the exit code, 0 done, 1 run-time error or
// refused, 2 usage. Output goes to `uscita`, everything else to standard error.
[[nodiscard]] int EseguiTorvi(const QStringList& argomenti, QTextStream& uscita);

}  // namespace torvi
