// The definition of one table in a Jet file: columns, indexes, counter and the pages of its rows.
// Private to archive/.
#pragma once

#include <vector>

#include "archive/jet_pagine.h"
#include "archive/schema.h"

namespace torvi::jet {

struct ColonnaJet {
  int tipo = 0;            // MDB_TEXT...
  std::size_t numero = 0;  // its bit in a row's mask
  bool fissa = false;      // at `posizione` in the row; otherwise `variabile` counts it
  std::size_t posizione = 0;
  std::size_t variabile = 0;
  std::size_t larghezza = 0;  // of a fixed one, in bytes
  std::size_t minimo = 0;     // what a value of the type cannot do without
  int decimali = 0;
  int cifre = 0;
};

struct Definizione {
  Tabella tabella;
  std::vector<ColonnaJet> colonne;  // one for each of tabella.colonne
  std::uint32_t pagina = 0;
  std::uint32_t righe = 0;  // as the file counts them
  std::int32_t ultimoContatore = 0;
  bool conVariabili = false;
  std::vector<std::uint32_t> pagineRighe;
};

// What is out of its bounds is error 3343.
[[nodiscard]] Definizione LeggiDefinizione(Pagine& pagine, const QString& nome,
                                           std::uint32_t pagina);

}  // namespace torvi::jet
