// The catalogue of Italian legislative acts, `catalogo norme.mdb` in mdb/ below the application
// folder.
#pragma once

#include <QHash>
#include <QString>
#include <optional>

#include "archive/database.h"

namespace torvi {

// Day, month and year as the row of a source holds them; `FonteNorm` as TabFonteInterna spells it.
struct AttoCercato {
  QString FonteNorm;
  QString giorno;
  QString mese;
  QString anno;
  QString numero;  // empty: any
};

class CatalogoNorme {
 public:
  explicit CatalogoNorme(const QString& cartellaApplicazione);

  // Opens the file for reading, once for as long as this object lives. Not there: error 3024.
  void Apri();
  // A day that is on no calendar matches nothing. Documents cite the same acts over and over: what
  // was found is remembered.
  [[nodiscard]] bool Contiene(const AttoCercato& atto);

 private:
  [[nodiscard]] bool Cerca(const AttoCercato& atto, const QString& data) const;

  QString cartella_;
  std::optional<Database> database_;
  QHash<QString, bool> cercati_;
};

}  // namespace torvi
