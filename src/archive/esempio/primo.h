// The first document of the sample delivery, written by hand: short, complete and without faults.
#pragma once

#include "archive/esempio/documento.h"

namespace torvi::esempio {

[[nodiscard]] Documento PrimoDocumento(const Tavole& tavole);

}  // namespace torvi::esempio
