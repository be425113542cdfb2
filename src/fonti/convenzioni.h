// Conventions that documents have cited already, to be cited again without typing.
#pragma once

#include <QStringList>
#include <vector>

#include "archive/database.h"

namespace torvi {

// The item of lstFonte that opens the picker.
[[nodiscard]] QString VoceConvenzione();

struct Convenzione {
  QString giorno;
  QString mese;  // number
  QString anno;
  QString numero;
  QString altro;
};

struct Convenzioni {
  QStringList linee;  // "1) " and the citation
  std::vector<Convenzione> valori;
};

// All that the archive holds. A twelfth: error 9.
[[nodiscard]] Convenzioni ElencaConvenzioni(const Database& archivio);
// The one of a line that was chosen.
[[nodiscard]] const Convenzione& ConvenzioneScelta(const Convenzioni& convenzioni,
                                                   const QString& linea);

}  // namespace torvi
