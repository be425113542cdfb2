// What a check of a text looks for: spelling or grammar.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace torvi {

struct Segnalazione {
  qsizetype inizio = 0;
  QString testo;  // what is wrong, as it stands in the text
  QString spiegazione;
  int regola = 0;  // among those of its check
  QStringList proposte;
};

class Esame {
 public:
  Esame() = default;
  Esame(const Esame&) = delete;
  Esame& operator=(const Esame&) = delete;
  virtual ~Esame() = default;

  // In the order of the text; at one place, of the rules.
  [[nodiscard]] virtual std::vector<Segnalazione> Segnala(const QString& testo) const = 0;
  // What may take the place of a finding, the best first.
  [[nodiscard]] virtual QStringList Proposte(const Segnalazione& segnalazione) const = 0;
  // From now on this is not found.
  virtual void IgnoraTutto(const Segnalazione& segnalazione) = 0;
  // Whether what a replacement brings in is examined as well.
  [[nodiscard]] virtual bool RiesaminaSostituzioni() const = 0;

  // The personal dictionary, where the check has one. A file that cannot be written: error 75.
  [[nodiscard]] virtual bool HaDizionario() const = 0;
  virtual void AggiungiAlDizionario(const Segnalazione& segnalazione) = 0;
};

}  // namespace torvi
