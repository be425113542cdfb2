// Spelling of one language: a dictionary, the legal words that it lacks, the personal words and
// those ignored as long as this lives.
#pragma once

#include <QHash>
#include <QSet>

#include "testi/dizionario.h"
#include "testi/dizionario_personale.h"
#include "testi/esame.h"
#include "testi/parole.h"

namespace torvi {

class Ortografia : public Esame {
 public:
  // The dictionary must outlive this. Errors of the personal dictionary.
  Ortografia(Lingua lingua, const Dizionario& dizionario, DizionarioPersonale personale);

  [[nodiscard]] std::vector<Tratto> Errate(const QString& testo) const;

  [[nodiscard]] std::vector<Segnalazione> Segnala(const QString& testo) const override;
  [[nodiscard]] QStringList Proposte(const Segnalazione& segnalazione) const override;
  void IgnoraTutto(const Segnalazione& segnalazione) override;
  [[nodiscard]] bool RiesaminaSostituzioni() const override { return false; }
  [[nodiscard]] bool HaDizionario() const override { return true; }
  void AggiungiAlDizionario(const Segnalazione& segnalazione) override;

 private:
  // The wrong part of a word, empty where it is right.
  [[nodiscard]] Tratto ParteErrata(const QString& parola) const;
  [[nodiscard]] Tratto FineErrata(const QString& parola) const;
  [[nodiscard]] bool Giusta(const QString& parola) const;
  [[nodiscard]] bool Nota(const QString& parola) const;
  [[nodiscard]] bool Elisione(const QString& parola) const;

  Lingua lingua_;
  const Dizionario& dizionario_;
  DizionarioPersonale personale_;
  QSet<QString> ignorate_;
  // A text is examined again at each key.
  mutable QHash<QString, bool> viste_;
};

}  // namespace torvi
