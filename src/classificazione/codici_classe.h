// What the code tables of both schemes of classification say of a code, and the lists of terms that
// the forms show.
#pragma once

#include <QStringList>
#include <optional>

#include "archive/database.h"

namespace torvi {

// Sigla, " - " and description of a systematic code.
[[nodiscard]] std::optional<QString> DescrizioneSistematico(const Database& archivio,
                                                            const QString& codice);
[[nodiscard]] std::optional<QString> DescrizioneDescrittore(const Database& archivio,
                                                            const QString& codice);

// A code of the scheme before 2000. Root codes have no parent; any other without its parent's row
// is not found.
struct Codice1999 {
  QString descrizione;
  QString padre;  // code, " - " and description; empty for a root code
};
[[nodiscard]] std::optional<Codice1999> CercaCodice1999(const Database& archivio,
                                                        const QString& codice);
// Two characters, or three of which the first two are "D9".
[[nodiscard]] bool CodiceRadice(const QString& codice);

// The asterisked terms in use. None at all: error 3021.
[[nodiscard]] QStringList TerminiAsteriscati(const Database& archivio);
// "NS --- ND" of each asterisk pair.
[[nodiscard]] QStringList CoppieAsteriscate(const Database& archivio);

}  // namespace torvi
