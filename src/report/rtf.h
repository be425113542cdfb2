// Pieces of RTF that the prints are made of, and the header they begin with.
#pragma once

#include "shell/stato_globale.h"

namespace torvi::rtf {

// A paragraph with a hanging indent; behind it stands its label, in bold.
inline const QString kRientro =
    QStringLiteral("\\pard \\fi-397\\li397\\nowidctlpar\\widctlpar\\adjustright ");
inline const QString kParagrafo = kRientro + QLatin1String("{\\b ");
inline const QString kFineParagrafo = QStringLiteral("\\par }");
// Where text of this size, in half points, begins.
[[nodiscard]] QString Corpo(int mezziPunti);

// A value that is no text of a document: its braces and backslashes are no RTF.
[[nodiscard]] QString Valore(QString valore);

// A template of the application folder as one line, its "Consegna xxx" under the delivery's name.
// Not there: error 53.
[[nodiscard]] QString LeggiTestata(const StatoGlobale& stato, const QString& nome);

}  // namespace torvi::rtf
