// The texts that stand for the pairs of the classification 2000. A run meets the same pairs over
// and over, so each is decoded once.
#pragma once

#include <QHash>

#include "export/tabelle_di_codici.h"

namespace torvi {

struct CoppiaDecodificata {
  QString codice;
  QString sigla;
  QString descrizione;
  QString descrittore;  // "; " and its text; empty for a pair without descriptor
};

class CoppieDecodificate {
 public:
  // `coppia` is a piece of CodiciClasse. A systematic code without row: error 3021. The result
  // stays good until the next search.
  [[nodiscard]] const CoppiaDecodificata& Cerca(TabelleDiCodici& codici, const QString& coppia);

 private:
  QHash<QString, CoppiaDecodificata> note_;
};

}  // namespace torvi
