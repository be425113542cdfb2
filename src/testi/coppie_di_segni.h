// Brackets and quotes that lack their fellow.
#pragma once

#include <vector>

#include "testi/esame.h"

namespace torvi {

// An opening sign is found with what follows it to the end of the sentence, where the closing one
// is proposed; a closing sign with the word before it. The letters and numbers of a list, "a)" and
// "2-bis)", need no opening.
[[nodiscard]] std::vector<Segnalazione> SegniSpaiati(const QString& testo);

}  // namespace torvi
