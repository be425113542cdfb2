// What the buttons and keys of the document form do, without their screen. Failures are thrown and
// end the command; what stands in the fields stays.
#pragma once

#include <vector>

#include "document/documento.h"

namespace torvi {

// Saves and stays. True where the document was written, here and in ComandoDuplica.
bool ComandoSalva(Documento& documento);
// Saves and leaves: true where the form is to be closed. The search result is forgotten.
[[nodiscard]] bool ComandoEsci(Documento& documento);
// The search result is forgotten; the form closes without a save.
void ComandoAbbandona(Documento& documento);
// A new document, the shown one saved before if the operator wants it: in place, or as a new one.
void ComandoNew(Documento& documento);
// The shown document saved as a new one, which stays on screen.
bool ComandoDuplica(Documento& documento);

enum class Verso { Avanti, Indietro };
// The next or previous document, without a save; the ends wrap around. In search mode it walks on
// to the next document of the result; where the result is empty there is none: error 28.
void ComandoSposta(Documento& documento, Verso verso);

// Marks rows of one of the lists for deletion, after a question. `scelte` are the selected places.
enum class Lista { Responsabilita, Classi, Fonti };
void ComandoElimina(Documento& documento, Lista lista, const std::vector<int>& scelte);

// Puts the text of the selected source into the note, for notes and comments or after what stands
// there.
void ComandoFonteInNota(Documento& documento);
// The compiler's note is emptied, and stays so also where the archive has one.
void ComandoCancellaNotaCompilatore(Documento& documento);

// Classification needs a year: message and focus where there is none.
[[nodiscard]] bool AnnoPerClassificare(Documento& documento);

}  // namespace torvi
