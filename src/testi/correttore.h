// The word processor that checks a text: it is given one, lets the operator correct it and gives it
// back.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "shell/dialoghi.h"
#include "testi/grammatica.h"
#include "testi/ortografia.h"
#include "testi/revisione.h"

namespace torvi {

enum class Controllo { Ortografico, Grammaticale };

class Correttore {
 public:
  Correttore() = default;
  Correttore(const Correttore&) = delete;
  Correttore& operator=(const Correttore&) = delete;
  virtual ~Correttore() = default;

  virtual void Carica(const QString& testo) = 0;
  // Ends when the operator has done. What it needs may be missing: error 53.
  virtual void Controlla(Controllo controllo) = 0;
  [[nodiscard]] virtual QString Testo() const = 0;
};

// One check of a text. Result: the text that takes its place; where it came back empty, by the
// operator's answer `testoIniziale` or the empty text.
[[nodiscard]] QString TestoControllato(Correttore& correttore, Controllo controllo,
                                       const QString& testo, const QString& testoIniziale,
                                       Dialoghi& dialoghi);
// "Controllo ortografico effettuato!"
[[nodiscard]] QString MessaggioFine(Controllo controllo);

// The checks of this program: dictionaries for the spelling, rules of its own for the grammar.
class CorrettoreProprio : public Correttore {
 public:
  // Lets the operator deal with the findings; not called where there are none.
  using Operatore = std::function<void(Revisione&, Controllo)>;

  CorrettoreProprio(Lingua lingua, Dizionari& dizionari, Operatore operatore);

  // Opened when first asked for and kept, with the words ignored. Errors of the dictionaries.
  [[nodiscard]] Ortografia& ApriOrtografia();

  void Carica(const QString& testo) override { testo_ = testo; }
  void Controlla(Controllo controllo) override;
  [[nodiscard]] QString Testo() const override { return testo_; }

 private:
  Lingua lingua_;
  Dizionari& dizionari_;
  Operatore operatore_;
  std::optional<Ortografia> ortografia_;
  QString testo_;
};

}  // namespace torvi
