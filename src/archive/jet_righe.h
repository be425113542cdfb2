// The rows of a table in a Jet file, in stored order, taken apart into their fields. Private to
// archive/.
#pragma once

#include <functional>

#include "archive/jet_definizione.h"

namespace torvi::jet {

// A field as its bytes, good until the next row.
struct CampoGrezzo {
  bool presente = false;  // not Null; of a boolean, its value
  Ottetti ottetti;
};
using RigaDiCampi = std::vector<CampoGrezzo>;

// Calls `riga` for each living row. Deleted rows are left out, moved ones stand at their old place.
// A damaged page or row, or another number of rows than the table counts: error 3343.
void PercorriRighe(Pagine& pagine, const Definizione& definizione,
                   const std::function<void(const RigaDiCampi&)>& riga);

}  // namespace torvi::jet
