// The delivery data of `TabInfo`, which every export, print and viewer reads first.
#pragma once

#include "shell/stato_globale.h"

namespace torvi {

// Fills SiglaConsegna, PrefissoDoc and ContatoreDoc from the one row of `TabInfo`. No row: error
// 3021; NumInizio past 32767: error 6; a Null column: error 94.
void LeggiInfoConsegna(StatoGlobale& stato);
// NumeroDoc: ContatoreDoc padded to at least four characters.
[[nodiscard]] QString NumeroDoc(const StatoGlobale& stato);
// The whole number of a document: PrefissoDoc and that counter, padded the same.
[[nodiscard]] QString NumeroIntero(const StatoGlobale& stato, qint64 contatore);
// Sets the marker column of a control function ("1" to "9") to "1". Any other code stores nothing
// but still edits the row. Markers are never cleared.
void RegistraUsoFunzione(const StatoGlobale& stato, const QString& codice);

}  // namespace torvi
