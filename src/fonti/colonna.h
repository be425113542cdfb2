// One column of the rows of a table or a statement, for the lists of the entry forms.
#pragma once

#include <QStringList>
#include <string_view>

#include "archive/database.h"

namespace torvi {

// In the order of the rows; Null as the empty text.
[[nodiscard]] QStringList Colonna(const Database& archivio, const QString& righe,
                                  std::string_view colonna);

}  // namespace torvi
