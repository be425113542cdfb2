#include <QChar>
#include <optional>

#include "archive/collazione.h"
#include "archive/utf8.h"

namespace torvi {
namespace {

char32_t PrendiPiegato(std::string_view& resto) {
  const char32_t carattere = PrendiCarattere(resto);
  if (carattere >= 'A' && carattere <= 'Z') return carattere + ('a' - 'A');
  if (carattere < 0x80 || carattere > QChar::LastValidCodePoint) return carattere;
  return QChar::toCaseFolded(carattere);
}

// Whether the set that `modello` stands in, behind its "[", holds the character; `modello` is moved
// behind the "]". Nothing where the set is not closed: the "[" is then a character like others.
std::optional<bool> NellInsieme(std::string_view& modello, char32_t carattere) {
  const auto fine = modello.find(']');
  if (fine == std::string_view::npos) return std::nullopt;
  std::string_view insieme = modello.substr(0, fine);
  modello.remove_prefix(fine + 1);
  const bool negato = insieme.starts_with('!');
  if (negato) insieme.remove_prefix(1);
  bool trovato = false;
  while (!insieme.empty()) {
    const char32_t primo = PrendiPiegato(insieme);
    char32_t ultimo = primo;
    if (insieme.size() > 1 && insieme.front() == '-') {
      insieme.remove_prefix(1);
      ultimo = PrendiPiegato(insieme);
    }
    trovato = trovato || (carattere >= primo && carattere <= ultimo);
  }
  return trovato != negato;
}

// Takes one sign off the pattern and the character off the text that it stands for. `modello` is
// not empty and does not begin with "*".
bool PrendiUno(std::string_view& testo, std::string_view& modello) {
  if (testo.empty()) return false;
  const char32_t carattere = PrendiPiegato(testo);
  const char32_t segno = PrendiPiegato(modello);
  if (segno == '?') return true;
  if (segno == '#') return carattere >= '0' && carattere <= '9';
  if (segno == '[') {
    if (const auto nellInsieme = NellInsieme(modello, carattere)) return *nellInsieme;
  }
  return segno == carattere;
}

// Drops from the text what cannot begin a match of the pattern behind a "*".
void Salta(std::string_view& testo, std::string_view modello) {
  const char32_t segno = PrendiPiegato(modello);
  if (segno == '?' || segno == '#' || segno == '[' || segno == '*') return;
  for (std::string_view dopo = testo; !dopo.empty(); testo = dopo) {
    if (PrendiPiegato(dopo) == segno) return;
  }
}

}  // namespace

bool SomigliaA(std::string_view testo, std::string_view modello) {
  // Where to take up again when what follows the last "*" does not fit: one character further on.
  std::string_view testoRipresa;
  std::string_view modelloRipresa;
  bool ripresa = false;
  while (!testo.empty() || !modello.empty()) {
    if (modello.starts_with('*')) {
      modello.remove_prefix(1);
      if (modello.empty()) return true;
      Salta(testo, modello);
      testoRipresa = testo;
      modelloRipresa = modello;
      ripresa = true;
    } else if (modello.empty() || !PrendiUno(testo, modello)) {
      if (!ripresa || testoRipresa.empty()) return false;
      static_cast<void>(PrendiCarattere(testoRipresa));
      Salta(testoRipresa, modelloRipresa);
      testo = testoRipresa;
      modello = modelloRipresa;
    }
  }
  return true;
}

}  // namespace torvi
