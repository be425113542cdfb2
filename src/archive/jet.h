// Reader of genuine Jet files (Standard Jet DB, version 4).
#pragma once

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "archive/campo.h"
#include "archive/schema.h"

namespace torvi {

// By the file's first bytes; false also for what cannot be read.
[[nodiscard]] bool EFileJet(const QString& percorso);

class LettoreJet {
 public:
  // A file that is no sound Jet file: error 3343, which names it.
  explicit LettoreJet(const QString& percorso);
  LettoreJet(LettoreJet&&) noexcept;
  ~LettoreJet();

  // User tables with columns, indexes and defaults, in the order of the file.
  [[nodiscard]] const std::vector<Tabella>& Tabelle() const;
  // The last value that the counter of a table has given, 0 without a counter.
  [[nodiscard]] qint64 UltimoContatore(const QString& tabella) const;
  // How many rows the file counts in a table; 0 also in one that was not closed properly.
  [[nodiscard]] qint64 QuanteRighe(const QString& tabella) const;
  // Rows in stored order; values in the order of the columns. Damage met on the way: error 3343.
  void LeggiRighe(const QString& tabella,
                  const std::function<void(const std::vector<Campo>&)>& riga) const;

 private:
  struct Stato;
  std::unique_ptr<Stato> stato_;
};

}  // namespace torvi
