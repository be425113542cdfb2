// Sources of every kind, cited as the entry forms cite them.
#pragma once

#include <array>
#include <map>

#include "archive/esempio/documento.h"
#include "archive/esempio/sorte.h"
#include "archive/esempio/temi.h"

namespace torvi::esempio {

// One citation being put together.
struct Composizione {
  const Tavole& tavole;
  const Voci& atti;                   // the rows of its table that this kind can name
  const Voci& liberi;                 // those among them that the norm catalogue does not cover
  const std::vector<AttoNoto>& noti;  // the acts of the norm catalogue that it can name
  int giro;                           // how many of this kind came before
  Sorte& sorte;
  FonteCitata fonte;

  // The rows in turn, so that all of them come up.
  template <typename Elenco>
  [[nodiscard]] const auto& InTurno(const Elenco& elenco) const {
    return elenco[static_cast<std::size_t>(giro) % elenco.size()];
  }
};

// How a kind of source is made.
struct RegolaFonte {
  Genere genere;
  const char* tp;  // nullptr: the routine says it
  Voci Tavole::*tavola;
  bool (*ammette)(const Voce& voce);
  void (*componi)(Composizione& composizione);
};
[[nodiscard]] std::span<const RegolaFonte> RegoleInterne();
[[nodiscard]] std::span<const RegolaFonte> RegoleAltre();

class Citazioni {
 public:
  // A kind without any row in its catalogue: error 3011.
  explicit Citazioni(const Tavole& tavole);
  // A new citation or, mostly, one that was given before: documents share their sources.
  [[nodiscard]] FonteCitata Componi(Genere genere, Sorte& sorte);

 private:
  struct Stato {
    const RegolaFonte* regola = nullptr;
    Voci atti;
    Voci liberi;
    std::vector<AttoNoto> noti;
    std::vector<FonteCitata> composte;
    int giro = 0;
  };
  void Prepara(Stato& stato);
  const Tavole& tavole_;
  std::map<Genere, Stato> stati_;
};

using Sezioni = std::span<const QStringView>;
inline constexpr std::array<QStringView, 5> kSezioni = {u"I", u"II", u"III", u"IV", u"V"};

// Pieces of citations, each of which also fills its columns.
[[nodiscard]] QString Ripartizioni(Composizione& composizione);  // "art. 3 bis comma 2 lett. a"
[[nodiscard]] QString Data(Composizione& composizione, int primoAnno, int ultimoAnno);
[[nodiscard]] QString Data(FonteCitata& fonte, const AttoNoto& atto);
[[nodiscard]] QString Numero(Composizione& composizione, int massimo);  // ", n. 12"
[[nodiscard]] QString Decisione(Composizione& composizione);            // "ord. " or "decr. "
// " II", now and then, where the master has that section.
[[nodiscard]] QString Sezione(Composizione& composizione, Sezioni sezioni = kSezioni);
// Blanks made single, none at the ends.
void Concludi(Composizione& composizione, const QString& testo);

}  // namespace torvi::esempio
