// A source as the writers of an export read it.
#pragma once

#include "archive/riga.h"

namespace torvi {

// The columns of the walk over the sources of the documents, in its order (IstruzioneFonti).
enum class ColonnaFonte : quint8 {
  IDDoc,
  IDFonte,
  TP,
  fonte,
  testo,
  articolo,
  comma,
  lettera,
  allegato,
  ripa,
  ripc,
  numero,
  giorno,
  mese,
  anno,
  altro,
  ordinanza,
  IDRegione,
  IDProvincia,
  IDCitta,
  IDMinistero,
  IDAmministrazione,
  IDAutorita,
  IDSezione,
  IDStato,
};

// Gives those columns, ordered by the document.
[[nodiscard]] QString IstruzioneFonti();

class FonteLetta {
 public:
  explicit FonteLetta(Riga riga) : riga_(std::move(riga)) {}
  [[nodiscard]] const Campo& operator[](ColonnaFonte colonna) const {
    return riga_.Fields(static_cast<int>(colonna));
  }

 private:
  Riga riga_;
};

}  // namespace torvi
