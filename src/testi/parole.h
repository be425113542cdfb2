// Words of a text as a spelling check takes them. What legal texts are full of and no dictionary
// holds is left out: web addresses, numbers and words with figures, abbreviations ("d.lgs.",
// "artt.", "CEDU", "S.p.A.") and the letters of lists.
#pragma once

#include <QString>
#include <vector>

namespace torvi {

struct Tratto {
  qsizetype inizio = 0;
  qsizetype lunghezza = 0;
};

// Letters, with apostrophes inside or at the end of them; the two sides of a hyphen are two words.
[[nodiscard]] std::vector<Tratto> ParoleDaControllare(const QString& testo);
// Web addresses and identifiers (URN, ECLI), where no rule of writing holds.
[[nodiscard]] std::vector<Tratto> Indirizzi(const QString& testo);

}  // namespace torvi
