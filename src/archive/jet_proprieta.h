// The properties that a Jet file keeps for a table and its columns. Private to archive/.
#pragma once

#include <map>

#include "archive/jet_pagine.h"

namespace torvi::jet {

// Column to default, as a literal of SQL: numbers, quoted texts, yes and no. An expression that has
// to be worked out for each row is no literal and is left out, like all other properties.
[[nodiscard]] std::map<QString, QString> Predefiniti(const Pagine& pagine, Ottetti proprieta);

}  // namespace torvi::jet
