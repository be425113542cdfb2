// The four long texts that one editor serves: which title and label it bears for each, in which
// language the text is checked, and where it stands until the document is saved.
#pragma once

#include "shell/stato_globale.h"
#include "testi/lingua.h"

namespace torvi {

struct TipoRiassunto {
  const char* tipo;  // value of TipoTestoRiassunto
  const char* titolo;
  const char* etichetta;
  Lingua lingua;
  QString StatoGlobale::*testo;
};

// The one of TipoTestoRiassunto. Any other value is error 5.
[[nodiscard]] const TipoRiassunto& TrovaTipoRiassunto(const QString& tipo);
// Stores a text without its CR LF: paragraphs join up with no blank between them.
void SalvaRiassunto(StatoGlobale& stato, const TipoRiassunto& tipo, QString testo);

}  // namespace torvi
