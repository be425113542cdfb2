// A source as the writers of an export read it.
#pragma once

#include "archive/database.h"
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

// The columns that an older archive lacks, a bit each.
using ColonneAssenti = quint32;
[[nodiscard]] ColonneAssenti FontiSenza(const Database& archivio);
// Gives those columns, ordered by the document; in the place of an absent one stands another.
[[nodiscard]] QString IstruzioneFonti(ColonneAssenti assenti);

class FonteLetta {
 public:
  FonteLetta(Riga riga, ColonneAssenti assenti) : riga_(std::move(riga)), assenti_(assenti) {}
  // An absent column fails whoever reads it: error 3061.
  [[nodiscard]] const Campo& operator[](ColonnaFonte colonna) const {
    if ((assenti_ >> static_cast<unsigned>(colonna) & 1U) != 0) Manca(colonna);
    return riga_.Fields(static_cast<int>(colonna));
  }

 private:
  [[noreturn]] static void Manca(ColonnaFonte colonna);

  Riga riga_;
  ColonneAssenti assenti_;
};

}  // namespace torvi
