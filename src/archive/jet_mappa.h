// The map of the pages that hold a table's rows. Private to archive/.
#pragma once

#include <vector>

#include "archive/jet_pagine.h"

namespace torvi::jet {

// In rising order, the order in which rows are stored. A page that the file lacks is error 3343.
[[nodiscard]] std::vector<std::uint32_t> PagineDellaMappa(Pagine& pagine, std::uint32_t puntatore);

}  // namespace torvi::jet
