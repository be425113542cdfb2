#include "export/codepagina.h"

#include <array>

#include "export/codepagina_tavole.h"

namespace torvi {
namespace {

constexpr char kMancante = '?';
constexpr char16_t kFineAscii = 0x80;

static_assert(kCp850.size() == 128);
static_assert(kCp1252.size() == 32);

// Characters that are converted at once: so many, always, and without a branch, that the compiler
// makes a few wide steps of them.
constexpr qsizetype kBlocco = 32;

// False where one of them is not ASCII; `byte` is then of no use.
bool CopiaBloccoAscii(const char16_t* c, char* byte) {
  char16_t tutti = 0;
  for (qsizetype i = 0; i < kBlocco; ++i) {
    tutti |= c[i];
    byte[i] = static_cast<char>(c[i]);
  }
  return tutti < kFineAscii;
}

// A byte for every UTF-16 unit, so that lengths counted on the text hold in the file: a character
// outside the basic plane gives two.
class Tavola {
 public:
  Tavola() {
    byte_.fill(kMancante);
    for (char16_t c = 0; c < kFineAscii; ++c) Metti(c, static_cast<char>(c));
  }
  void Metti(char16_t carattere, char byte) { byte_.at(carattere) = byte; }
  void MettiDa(std::u16string_view caratteri) {
    char16_t byte = kFineAscii;
    for (const char16_t c : caratteri) Metti(c, static_cast<char>(byte++));
  }
  [[nodiscard]] char Byte(char16_t carattere) const { return byte_[carattere]; }
  [[nodiscard]] bool Manca(char16_t carattere) const { return byte_[carattere] == kMancante; }
  // Most text is ASCII, which the table maps to itself: only blocks that hold something else are
  // looked up character by character.
  void Converti(QStringView testo, char* byte) const {
    const char16_t* c = testo.utf16();
    qsizetype restano = testo.size();
    for (; restano >= kBlocco; restano -= kBlocco, c += kBlocco, byte += kBlocco) {
      if (!CopiaBloccoAscii(c, byte)) Cerca(c, kBlocco, byte);
    }
    Cerca(c, restano, byte);
  }
  [[nodiscard]] QByteArray Converti(QStringView testo) const {
    QByteArray byte(testo.size(), Qt::Uninitialized);
    Converti(testo, byte.data());
    return byte;
  }

 private:
  void Cerca(const char16_t* c, qsizetype quanti, char* byte) const {
    for (qsizetype i = 0; i < quanti; ++i) byte[i] = Byte(c[i]);
  }

  std::array<char, 0x10000> byte_{};
};

void TogliAccenti(Tavola& tavola, char16_t primo, char16_t ultimo) {
  for (char16_t c = primo; c <= ultimo; ++c) {
    if (!tavola.Manca(c)) continue;
    // A letter with two accents decomposes into one with one accent first.
    QChar base(c);
    while (base.decompositionTag() == QChar::Canonical && tavola.Manca(base.unicode())) {
      base = base.decomposition().at(0);
    }
    tavola.Metti(c, tavola.Byte(base.unicode()));
  }
}

Tavola CostruisciOem() {
  Tavola tavola;
  tavola.MettiDa(kCp850);
  for (const auto& [carattere, byte] : kVicini) tavola.Metti(carattere, byte);
  TogliAccenti(tavola, 0x0100, 0x024F);
  TogliAccenti(tavola, 0x1E00, 0x1EFF);
  return tavola;
}

const Tavola& TavolaOem() {
  static const Tavola tavola = CostruisciOem();
  return tavola;
}

Tavola CostruisciAnsi() {
  Tavola tavola;
  tavola.MettiDa(kCp1252);
  for (char16_t c = 0xA0; c <= 0xFF; ++c) tavola.Metti(c, static_cast<char>(c));
  return tavola;
}

const Tavola& TavolaAnsi() {
  static const Tavola tavola = CostruisciAnsi();
  return tavola;
}

}  // namespace

QByteArray ConvertiOem(QStringView testo) { return TavolaOem().Converti(testo); }

void AccodaOem(std::string& byte, QStringView testo) {
  const std::size_t inizio = byte.size();
  byte.resize(inizio + testo.size());
  TavolaOem().Converti(testo, byte.data() + inizio);
}

QByteArray ConvertiAnsi(QStringView testo) { return TavolaAnsi().Converti(testo); }

void AccodaAnsi(QByteArray& byte, QStringView testo) {
  const qsizetype inizio = byte.size();
  byte.resize(inizio + testo.size());
  TavolaAnsi().Converti(testo, byte.data() + inizio);
}

QString DaAnsi(QByteArrayView byte) {
  QString testo = QString::fromLatin1(byte);
  for (QChar& c : testo) {
    if (c.unicode() >= kFineAscii && c.unicode() < kFineAscii + kCp1252.size()) {
      c = kCp1252[c.unicode() - kFineAscii];
    }
  }
  return testo;
}

}  // namespace torvi
