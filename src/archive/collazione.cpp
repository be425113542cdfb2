#include "archive/collazione.h"

#include <QChar>

#include "archive/collazione_tavola.h"
#include "archive/utf8.h"

namespace torvi {
namespace {

using namespace collazione;

// What a character weighs at each of the three levels; 0 where it has nothing to say.
struct Peso {
  std::uint32_t primo = 0;
  std::uint32_t secondo = 0;  // the second letter of a ligature
  std::uint8_t accento = kSenzaAccento;
  std::uint8_t spareggio = 0;
};

// Characters that the table does not know come after all others, by their numbers.
constexpr std::uint32_t kIgnoti = 0x10000;

template <class Tavola>
auto Cerca(const Tavola& tavola, char32_t carattere) {
  return std::find_if(tavola.begin(), tavola.end(),
                      [&](const auto& voce) { return voce.carattere == carattere; });
}

std::uint8_t SpareggioDi(char32_t carattere) {
  if (carattere <= 0x08) return static_cast<std::uint8_t>(kSpareggioNullo + carattere);
  if (carattere < 0x20) return static_cast<std::uint8_t>(carattere - 3);
  if (carattere >= 0x80 && carattere < 0xA0) {
    return static_cast<std::uint8_t>(kSpareggioC1 + carattere - 0x80);
  }
  const auto* segno = Cerca(kSpareggi, carattere);
  return segno == kSpareggi.end() ? 0 : segno->peso;
}

Lettera LetteraDi(char32_t carattere) {
  if (carattere < 0x80) return {kPrimiAscii[carattere], kSenzaAccento};
  if (carattere < 0xA0) return {};
  if (carattere < 0x100) return kLatini[carattere - 0xA0];
  const auto* altra =
      std::lower_bound(kAltri.begin(), kAltri.end(), carattere,
                       [](const LetteraAltra& a, char32_t c) { return a.carattere < c; });
  if (altra == kAltri.end() || altra->carattere != carattere) return {};
  return {altra->primo, altra->accento};
}

Peso PesoDi(char32_t carattere) {
  // Folding is stable for every character once it exists, so indexes may depend on it.
  if (carattere >= 0x100 && carattere <= QChar::LastValidCodePoint) {
    carattere = QChar::toCaseFolded(carattere);
  }
  const Lettera lettera = LetteraDi(carattere);
  if (lettera.primo != 0) return {lettera.primo, 0, lettera.accento, 0};
  if (const std::uint8_t spareggio = SpareggioDi(carattere)) return {0, 0, 0, spareggio};
  const auto* legatura = Cerca(kLegature, carattere);
  if (legatura != kLegature.end()) return {legatura->primo, legatura->secondo, kSenzaAccento, 0};
  return {kIgnoti + carattere, 0, kSenzaAccento, 0};
}

// The accent that stands as a character of its own behind its letter; taken off the text.
std::uint8_t PrendiAccentoStaccato(std::string_view& resto) {
  constexpr unsigned char kCapo = 0xCC;  // of U+0300 to U+033F
  if (resto.empty() || static_cast<unsigned char>(resto.front()) != kCapo) return 0;
  std::string_view dopo = resto;
  const auto* segno = Cerca(kAccentiStaccati, PrendiCarattere(dopo));
  if (segno == kAccentiStaccati.end()) return 0;
  resto = dopo;
  return segno->peso;
}

// The weights of a text, letter by letter; all 0 at the end.
class Lettore {
 public:
  explicit Lettore(std::string_view testo) : resto_(testo) {}

  Peso Prossimo() {
    Peso peso;
    if (pendente_ != 0) {
      peso.primo = pendente_;
      pendente_ = 0;
    } else {
      if (resto_.empty()) return peso;
      peso = PesoDi(PrendiCarattere(resto_));
      pendente_ = peso.secondo;
    }
    if (peso.primo == 0 || pendente_ != 0) return peso;
    while (const std::uint8_t accento = PrendiAccentoStaccato(resto_)) peso.accento = accento;
    return peso;
  }

 private:
  std::string_view resto_;
  std::uint32_t pendente_ = 0;
};

// Which text the tie-breakers put first. They count first by how many letters stand before them,
// then by their weights.
class Spareggio {
 public:
  // The next of each text in front of the same letter, 0 for none.
  void Vedi(std::uint8_t a, std::uint8_t b) {
    if (sospeso_) {
      if ((esito_ > 0 ? b : a) == 0) return;
      esito_ = -esito_;
      sospeso_ = false;
    } else if (esito_ == 0 && a != b) {
      esito_ = a < b ? -1 : 1;
      sospeso_ = a == 0 || b == 0;
    }
  }
  [[nodiscard]] int Esito() const { return esito_; }

 private:
  int esito_ = 0;
  // Only one text has had one: it comes behind, unless the other has one further on.
  bool sospeso_ = false;
};

// All levels in one walk: the first difference of a level counts where those above have none.
int ConfrontaPerIntero(std::string_view a, std::string_view b) {
  Lettore lettoreA(a);
  Lettore lettoreB(b);
  int accenti = 0;
  Spareggio spareggio;
  while (true) {
    Peso pesoA = lettoreA.Prossimo();
    Peso pesoB = lettoreB.Prossimo();
    while (pesoA.spareggio != 0 || pesoB.spareggio != 0) {
      spareggio.Vedi(pesoA.spareggio, pesoB.spareggio);
      if (pesoA.spareggio != 0) pesoA = lettoreA.Prossimo();
      if (pesoB.spareggio != 0) pesoB = lettoreB.Prossimo();
    }
    if (pesoA.primo != pesoB.primo) return pesoA.primo < pesoB.primo ? -1 : 1;
    if (pesoA.primo == 0) return accenti != 0 ? accenti : spareggio.Esito();
    if (accenti == 0) accenti = (pesoA.accento > pesoB.accento) - (pesoA.accento < pesoB.accento);
  }
}

std::string_view SenzaSpaziFinali(std::string_view testo) {
  const auto ultimo = testo.find_last_not_of(' ');
  return testo.substr(0, ultimo == std::string_view::npos ? 0 : ultimo + 1);
}

// How many characters at the start weigh the same, plain letters only; `esito` is set where the
// next two are plain letters that differ.
std::size_t PrefissoUguale(std::string_view a, std::string_view b, int& esito) {
  const std::size_t lunghezza = std::min(a.size(), b.size());
  for (std::size_t i = 0; i < lunghezza; ++i) {
    const auto byteA = static_cast<unsigned char>(a[i]);
    const auto byteB = static_cast<unsigned char>(b[i]);
    if (((byteA | byteB) & 0x80) != 0) return i;
    const int pesoA = kPrimiAscii[byteA];
    const int pesoB = kPrimiAscii[byteB];
    if (pesoA == 0 || pesoB == 0) return i;
    if (pesoA != pesoB) {
      esito = pesoA < pesoB ? -1 : 1;
      return i;
    }
  }
  return lunghezza;
}

}  // namespace

int ConfrontaItaliano(std::string_view a, std::string_view b) {
  if (a == b) return 0;
  a = SenzaSpaziFinali(a);
  b = SenzaSpaziFinali(b);
  int esito = 0;
  std::size_t uguali = PrefissoUguale(a, b, esito);
  if (esito != 0 || (uguali == a.size() && uguali == b.size())) return esito;
  // One letter back: an accent of its own may follow it.
  if (uguali > 0) --uguali;
  return ConfrontaPerIntero(a.substr(uguali), b.substr(uguali));
}

}  // namespace torvi
