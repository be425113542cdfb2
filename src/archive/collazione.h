// How text is compared: without regard to case, heeding accents, in the order of genuine archives.
#pragma once

#include <string_view>

struct sqlite3;

namespace torvi {

// Less than, equal to or greater than 0. Both UTF-8. Primary weights of the letters first, then
// accents, then the characters that only break ties (hyphen, apostrophe...). Blanks at the end
// count for nothing; characters beyond the Latin ones come last, by their numbers. A fixed table:
// indexes on disk depend on it.
[[nodiscard]] int ConfrontaItaliano(std::string_view a, std::string_view b);
// `*` any text, `?` one character, `#` one digit, [a-z] [!a-z] a set; without regard to case. A "["
// that is not closed is a character like others.
[[nodiscard]] bool SomigliaA(std::string_view testo, std::string_view modello);

// On one connection: the collation ITALIANO, the operator LIKE as SomigliaA, and the functions of
// the dialect, left and right.
void RegistraFunzioni(sqlite3* motore);

}  // namespace torvi
