// Shows the error files that the last export of a delivery left.
#pragma once

#include <QString>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

struct VoceErrori {
  QLatin1StringView codice;        // of its marker in `TabInfo`
  QLatin1StringView file;          // in dump/, before the delivery's name
  QLatin1StringView intestazione;  // above the lines of the file
  QLatin1StringView nessuno;       // said of a clean file
};

inline constexpr VoceErrori kErroriGenerici = {QLatin1StringView("7"), QLatin1StringView("errori."),
                                               QLatin1StringView("Errori generici"),
                                               QLatin1StringView("Non ci sono errori!")};
inline constexpr VoceErrori kErroriClasse = {
    QLatin1StringView("8"), QLatin1StringView("errclasse."),
    QLatin1StringView("Errori di classificazione"),
    QLatin1StringView("Non ci sono errori di classificazione!")};
inline constexpr VoceErrori kErroriFonti = {QLatin1StringView("9"), QLatin1StringView("errfonte."),
                                            QLatin1StringView("Errori nelle fonti"),
                                            QLatin1StringView("Non ci sono errori nelle fonti!")};

// Sets the marker, then reads the file: a window with its lines (TestoErrori), or a message where
// it holds one empty line only. A file that is not there gets a message; any other failure ends the
// routine in silence. Result: why nothing was shown; empty where something was, or was said.
QString VisualizzaErrori(StatoGlobale& stato, Dialoghi& dialoghi, const VoceErrori& voce);

}  // namespace torvi
