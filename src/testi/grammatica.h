// The grammar check: the rules of a language and of both, and brackets and quotes that do not
// match.
#pragma once

#include <QRegularExpression>
#include <set>

#include "testi/esame.h"
#include "testi/lingua.h"
#include "testi/regole.h"

namespace torvi {

class Grammatica : public Esame {
 public:
  explicit Grammatica(Lingua lingua);

  // The rule that a finding names; null for brackets and quotes.
  [[nodiscard]] const Regola* RegolaDi(const Segnalazione& segnalazione) const;

  [[nodiscard]] std::vector<Segnalazione> Segnala(const QString& testo) const override;
  [[nodiscard]] QStringList Proposte(const Segnalazione& segnalazione) const override {
    return segnalazione.proposte;
  }
  // The whole rule.
  void IgnoraTutto(const Segnalazione& segnalazione) override {
    ignorate_.insert(segnalazione.regola);
  }
  [[nodiscard]] bool RiesaminaSostituzioni() const override { return true; }
  [[nodiscard]] bool HaDizionario() const override { return false; }
  void AggiungiAlDizionario(const Segnalazione& /*segnalazione*/) override {}

 private:
  struct Pronta {
    const Regola* regola;
    QRegularExpression cerca;
  };
  void Applica(int quale, const QString& testo, std::vector<Segnalazione>& trovate) const;

  std::vector<Pronta> regole_;
  std::set<int> ignorate_;
};

}  // namespace torvi
