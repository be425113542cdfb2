// UTF-8 one character at a time, for what compares stored text byte by byte.
#pragma once

#include <cstdint>
#include <string_view>

namespace torvi {

// Takes the first character off a text that is not empty. A byte that belongs to no character is
// taken alone and gives a number beyond every character, the same for the same byte.
[[nodiscard]] char32_t PrendiCarattere(std::string_view& resto);

}  // namespace torvi
