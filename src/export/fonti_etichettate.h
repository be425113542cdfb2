// Field 22: the sources of a document in twenty-one subfields each, for the ISIS flavour.
#pragma once

#include "export/contesto.h"
#include "export/fonte_letta.h"

namespace torvi {

// `fonti` are the sources of the document. Appends the field if there are any; checks nothing. A
// source whose kind, region, city or the like has no row in its table: error 3021; a URN template
// that lacks a place holder: error 5; the number of an EU source past 32767: error 6.
void ScriviFontiEtichettate(ContestoEsportazione& contesto, std::span<const FonteLetta> fonti);

}  // namespace torvi
