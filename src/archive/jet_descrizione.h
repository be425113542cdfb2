// The bytes of a table's definition, over all its pages, with every length in them tested: after
// that the library can read them, and the indexes are read here. Private to archive/.
#pragma once

#include <vector>

#include "archive/jet_pagine.h"

namespace torvi::jet {

struct IndiceGrezzo {
  QString nome;
  std::vector<unsigned> colonne;  // by their numbers
  bool unico = false;
};

class Descrizione {
 public:
  // `nome` is what messages name. Whatever does not fit is error 3343.
  Descrizione(Pagine& pagine, std::uint32_t prima, const QString& nome);

  // Without those that only keep up a relation. The library's own list loses its place where two
  // indexes share their entries.
  [[nodiscard]] std::vector<IndiceGrezzo> Indici() const;
  void Esigi(bool sano) const;

 private:
  void Raccogli(Pagine& pagine, std::uint32_t prima);
  std::size_t SaltaNomi(std::size_t posizione, std::size_t quanti) const;
  [[nodiscard]] IndiceGrezzo Entrate(std::size_t quale) const;

  const Pagine& pagine_;
  QString dove_;
  std::vector<std::uint8_t> dati_;
  std::size_t veri_ = 0;    // how many sets of entries the indexes have
  std::size_t indici_ = 0;  // how many indexes, under their names
  std::size_t inizioVeri_ = 0;
  std::size_t inizioIndici_ = 0;
};

}  // namespace torvi::jet
