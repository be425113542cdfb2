// The names of the people and bodies that the documents of a run share, as an output shows them.
#pragma once

#include "export/ricordati.h"

namespace torvi {

class NomiResponsabili {
 public:
  // `fra` stands between the two elements of a name.
  NomiResponsabili(const Database& archivio, QLatin1StringView fra);

  // Both elements; of a body, the first alone. Nothing where there is no such row; good until the
  // next search. A person without `SecondoElemento` (Null): error 94.
  [[nodiscard]] const QString* Cerca(const Campo& idResponsabilita) {
    return noti_.Cerca(idResponsabilita);
  }
  void LeggiTutti() { noti_.LeggiTutti(); }

 private:
  Ricordati<QString> noti_;
};

}  // namespace torvi
