// Issues of journals, and the pages that documents take in them.
#pragma once

#include <map>

#include "archive/esempio/documento.h"
#include "archive/esempio/sorte.h"

namespace torvi::esempio {

class Fascicoli {
 public:
  explicit Fascicoli(const Tavole& tavole) : tavole_(tavole) {}
  // Gives the next document its issue, most often that of the document before, and its pages.
  void Assegna(Documento& documento, Sorte& sorte);

 private:
  const Tavole& tavole_;
  Riferimento corrente_;
  int rimasti_ = 0;
  std::map<QString, int> pagine_;  // the next free page of an issue
};

}  // namespace torvi::esempio
