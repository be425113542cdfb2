// Rows of the list of sources: their kinds, the lines that stand for them, and the empty row.
#pragma once

#include <QStringList>
#include <vector>

#include "shell/righe.h"

namespace torvi {

// Codes that begin LI or GI, and AC: sources of internal law.
[[nodiscard]] bool FonteInterna(const QString& tp);
// Codes that begin NI, GE or F, and NS and GS: sources of other law, whose lines bear their code.
[[nodiscard]] bool FonteEsterna(const QString& tp);

// Who wrote the lines last. After a source of internal law no line bears its code; a code that
// belongs to no kind of law bears it only after another source was entered.
enum class RegolaLista { Caricata, DopoInterna, DopoAltra };

// "DEL--" in front of a row marked for deletion, the text, and the code between asterisks.
[[nodiscard]] QString RigaLista(const RigaFonte& riga, RegolaLista regola = RegolaLista::Caricata);
[[nodiscard]] QStringList RigheLista(const std::vector<RigaFonte>& righe,
                                     RegolaLista regola = RegolaLista::Caricata);

// What stands before the first asterisk; without one, all.
[[nodiscard]] QString SenzaCodice(const QString& testo);

// TP "0", no key, no marks, every other text empty. Decreto and Ordinanza stay.
void AzzeraFonte(RigaFonte& riga);

}  // namespace torvi
