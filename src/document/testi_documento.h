// The nine kinds of text of a document: where each stands while it is on screen, how the save
// normalises it, and which button tells that it exists.
#pragma once

#include <span>

#include "document/documento.h"

namespace torvi {

struct TestoDocumento {
  char tipo;                           // '0' to '8', as stored
  const char16_t* nome;                // as the operator is told of it
  QString CampiDocumento::*controllo;  // a control of the form, or else
  QString StatoGlobale::*buffer;       // a buffer
  bool senzaRitorni;                   // CR LF pairs are removed
  bool senzaTabulazioni;
  bool senzaPuntoFinale;  // one final '.' is removed
  const char* pulsante;   // null where the text has no button
  const char* icona;      // "write"; with "-r" where the text exists
};

// In the order of their kinds.
[[nodiscard]] std::span<const TestoDocumento> GeneriDiTesto();
// The text where it stands now.
[[nodiscard]] QString& Valore(Documento& documento, const TestoDocumento& testo);

}  // namespace torvi
