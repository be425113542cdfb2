#include "archive/utf8.h"

#include <array>

namespace torvi {
namespace {

constexpr char32_t kByteEstraneo = 0x110000;

struct Forma {
  unsigned char maschera;
  unsigned char capo;
  int seguenti;
  char32_t minimo;  // a smaller number in this form is no valid character
};
constexpr std::array kForme = {Forma{0xE0, 0xC0, 1, 0x80}, Forma{0xF0, 0xE0, 2, 0x800},
                               Forma{0xF8, 0xF0, 3, 0x10000}};

bool Valido(char32_t carattere, char32_t minimo) {
  const bool surrogato = carattere >= 0xD800 && carattere <= 0xDFFF;
  return carattere >= minimo && carattere < kByteEstraneo && !surrogato;
}

// The number of the character, or kByteEstraneo.
char32_t Componi(std::string_view testo, const Forma& forma) {
  char32_t carattere = static_cast<unsigned char>(testo[0]) & ~forma.maschera & 0xFF;
  if (testo.size() <= static_cast<std::size_t>(forma.seguenti)) return kByteEstraneo;
  for (int i = 1; i <= forma.seguenti; ++i) {
    const auto byte = static_cast<unsigned char>(testo[i]);
    if ((byte & 0xC0) != 0x80) return kByteEstraneo;
    carattere = (carattere << 6) | (byte & 0x3F);
  }
  return Valido(carattere, forma.minimo) ? carattere : kByteEstraneo;
}

}  // namespace

char32_t PrendiCarattereLungo(std::string_view& resto) {
  const auto primo = static_cast<unsigned char>(resto.front());
  char32_t carattere = kByteEstraneo;
  int lunghezza = 1;
  for (const Forma& forma : kForme) {
    if ((primo & forma.maschera) != forma.capo) continue;
    carattere = Componi(resto, forma);
    if (carattere != kByteEstraneo) lunghezza = 1 + forma.seguenti;
  }
  resto.remove_prefix(lunghezza);
  return carattere == kByteEstraneo ? kByteEstraneo + primo : carattere;
}

}  // namespace torvi
