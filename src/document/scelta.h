// The documents of the archive by their two numbers, to open one or to delete several. What the
// form of the choice shows and remembers is a struct that the routines fill; the form copies it
// out.
#pragma once

#include <QStringList>
#include <functional>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

enum class ModoScelta { Edita, Cancella };

struct SceltaDoc {
  QStringList lstDocumento;  // "IDDocumento --> delivery number"
  int indice = -1;           // of the last click, -1 when none
  Database archivio;         // the one whose documents are listed
};

// The start of the two menu commands. `carica` makes the form and tells whether it stayed; if it
// did not, or failed, the operator is told that the archive is a new one. Result: there is a form.
[[nodiscard]] bool CaricaScelta(StatoGlobale& stato, Dialoghi& dialoghi, ModoScelta modo,
                                const std::function<bool()>& carica);

// Fills the list, with a message where there is no document. The delivery number follows the place
// in the list. What fails leaves the list as it was.
void RiempiScelta(StatoGlobale& stato, Dialoghi& dialoghi, SceltaDoc& scelta);
// A click on a line: the document is IDDocumentoScelto.
void CliccaScelta(StatoGlobale& stato, SceltaDoc& scelta, int indice);
// True if the document form is to be opened on IDDocumentoScelto; a message where nothing was
// clicked.
[[nodiscard]] bool EditaScelta(StatoGlobale& stato, Dialoghi& dialoghi, const SceltaDoc& scelta);
// Deletes the documents of these lines after a question, their rows of TabDocumento alone, and
// fills the list again. Failures are shown. Result: the list was filled again.
bool CancellaScelte(StatoGlobale& stato, Dialoghi& dialoghi, SceltaDoc& scelta,
                    const QStringList& linee);

}  // namespace torvi
