// UTF-8 one character at a time, for what compares stored text byte by byte.
#pragma once

#include <string_view>

namespace torvi {

// Takes the first character off a text that is not empty. A byte that belongs to no character is
// taken alone and gives a number beyond every character, the same for the same byte.
[[nodiscard]] char32_t PrendiCarattereLungo(std::string_view& resto);
[[nodiscard]] inline char32_t PrendiCarattere(std::string_view& resto) {
  const auto primo = static_cast<unsigned char>(resto.front());
  if (primo >= 0x80) return PrendiCarattereLungo(resto);
  resto.remove_prefix(1);
  return primo;
}

}  // namespace torvi
