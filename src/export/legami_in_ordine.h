// The rows that belong to the documents of a run, link table by link table. A run meets the
// documents in the order of their numbers, so one walk in that order serves them all; links of
// documents that are gone are passed over.
#pragma once

#include <optional>

#include "archive/database.h"

namespace torvi {

class LegamiInOrdine {
 public:
  // The statement gives a column `IDDoc` and is ordered by it.
  LegamiInOrdine(const Database& archivio, const QString& istruzione)
      : archivio_(archivio), istruzione_(istruzione) {}

  // Moves to the first row of a document, from the beginning where it is not one further on.
  void Cerca(qint64 idDoc);
  // No row of that document, or none left. Riga() and Avanti() need one.
  [[nodiscard]] bool Finiti() const { return qui_ != cercato_; }
  [[nodiscard]] const Recordset& Riga() const { return *righe_; }
  void Avanti();

 private:
  void Apri();
  void LeggiNumero();

  Database archivio_;
  QString istruzione_;
  std::optional<Recordset> righe_;
  int colonna_ = 0;
  std::optional<qint64> qui_;  // document of the row at hand; none past the last
  std::optional<qint64> cercato_ = 0;
};

// Those of one run; each is opened when first asked. An export reads its sources otherwise
// (FontiInAnticipo).
struct LegamiDocumento {
  explicit LegamiDocumento(const Database& archivio);
  LegamiInOrdine responsabilita;
  LegamiInOrdine testi;
  LegamiInOrdine fonti;
  LegamiInOrdine classi;
  LegamiInOrdine classi1999;
};

}  // namespace torvi
