// The kinds of act that the catalogue of norms spells in its own way.
#pragma once

#include <QString>

namespace torvi {

// "d.lg." as an archive has it is "d.lgs." in the catalogue; most are spelled alike.
[[nodiscard]] QString AbbreviazioneCatalogo(const QString& fonteNorm);
// The way back.
[[nodiscard]] QString FonteNormDelCatalogo(const QString& abbreviazione);

}  // namespace torvi
