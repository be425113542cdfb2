// The faults of the sample documents: together they make the export write each of its messages.
#pragma once

#include "archive/esempio/classi.h"
#include "archive/esempio/fonti.h"

namespace torvi::esempio {

// What a fault is made with.
struct Mezzi {
  const Tavole& tavole;
  Citazioni& citazioni;
  const Classificazione& classificazione;
  Sorte& sorte;
};

// Spoils the document if its place in the delivery is that of a fault.
void Guasta(Documento& documento, int posto, const Mezzi& mezzi);

}  // namespace torvi::esempio
