// The texts of a sample document: those that its type of document and of abstract call for.
#pragma once

#include "archive/esempio/documento.h"
#include "archive/esempio/sorte.h"
#include "archive/esempio/temi.h"

namespace torvi::esempio {

// The places of the texts, which are their `Tipo`.
enum TipoTesto : std::size_t {
  kTitolo = 0,
  kRiassunto = 1,
  kSommario = 2,
  kTraduzione = 3,
  kNota = 4,
  kNotaCompilatore = 5,
  kNotaAmb = 6,
  kInTemaDi = 7,
  kAbstractInglese = 8,
};

// Reads td, TAbs, people and sources, which must be there; sets the language.
void ScriviTesti(Documento& documento, const Tema& tema, Sorte& sorte);

}  // namespace torvi::esempio
