// The rules of the grammar check, as tables: what is sought, what is proposed for it, and why.
#pragma once

#include <QRegularExpressionMatch>
#include <span>

namespace torvi {

struct Regola {
  const char* nome;
  // A regular expression; `<impura>`, `<vocale>` and `<apostrofo>` in it stand for the letters that
  // take "lo" and "uno", for vowels and for both kinds of apostrophe.
  const char* cerca;
  // Proposals, `|` between them; \1 to \9 what was captured, \u before one in capitals. One whose
  // group took no part is left out; the capital of what was found is kept.
  const char* proposte;
  const char* spiegazione;
  // Where a match may be right after all.
  bool (*vale)(const QRegularExpressionMatch& trovato) = nullptr;
};

[[nodiscard]] std::span<const Regola> RegoleComuni();
[[nodiscard]] std::span<const Regola> RegoleItaliane();
[[nodiscard]] std::span<const Regola> RegoleInglesi();

}  // namespace torvi
