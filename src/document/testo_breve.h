// The three short texts of a document that have a form each: where each stands until the save, and
// what its form shows. Failures of the archive are ErroreEsecuzione.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

struct TestoBreve {
  const char* nome;  // "Traduzione", "NotaDoc", "Nota"
  char tipo;         // as stored in the archive
  QString StatoGlobale::*buffer;
  bool siCancella;  // "&Cancella nota" and a new text shut out what the archive has
};

// By its name. Any other name is error 5.
[[nodiscard]] const TestoBreve& TrovaTestoBreve(const QString& nome);
// What the form shows: the buffer, or where that is empty the text that the archive still has for
// the document; nothing where it is gone.
[[nodiscard]] QString CaricaTestoBreve(const StatoGlobale& stato, const TestoBreve& breve,
                                       qint64 numeroDocumento);
// "Esci e salva".
void EsciTestoBreve(StatoGlobale& stato, const TestoBreve& breve, const QString& testo);

}  // namespace torvi
