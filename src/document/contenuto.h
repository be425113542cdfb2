// What an operator would lose by leaving a document without a save: compared with how it stood when
// it was loaded or last saved, it tells whether anything was changed.
#pragma once

#include "document/documento.h"

namespace torvi {

struct ContenutoDocumento {
  CampiDocumento campi;
  std::vector<RigaResponsabilita> responsabilita;
  std::vector<RigaClasse> classi;
  std::vector<RigaFonte> fonti;
  QStringList testi;  // the seven without a control
  bool operator==(const ContenutoDocumento&) const = default;
};

[[nodiscard]] ContenutoDocumento Contenuto(const Documento& documento);

// "Documento 12: esistente, modificato", with the texts that the archive lacks; or that it could
// not be loaded, and why.
[[nodiscard]] QString DescriviStato(const Documento& documento, bool modificato);

}  // namespace torvi
