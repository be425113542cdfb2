// Words of legal writing that the general dictionaries lack: the Latin of jurists, the terms of the
// branches of law.
#pragma once

#include <QString>

#include "testi/lingua.h"

namespace torvi {

// Case counts: names have their capital.
[[nodiscard]] bool ParolaGiuridica(const QString& parola, Lingua lingua);

}  // namespace torvi
