// Conditions and terms of a statement in the engine's words.
#pragma once

#include <QString>
#include <QStringView>

#include "archive/lessico.h"

namespace torvi {

// A name as the engine takes any name.
[[nodiscard]] QString InQuadre(const QString& nome);
// A function that the dialect does not have, a sign out of place: error 3075 with `istruzione`.
// What else is wrong the engine will tell.
[[nodiscard]] QString ScriviEspressione(Brano brano, QStringView istruzione);
[[nodiscard]] bool HaAggregati(Brano brano);

}  // namespace torvi
