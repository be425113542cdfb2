// Classification of the sample documents in both schemes.
#pragma once

#include <map>

#include "archive/esempio/documento.h"
#include "archive/esempio/sorte.h"

namespace torvi::esempio {

class Classificazione {
 public:
  explicit Classificazione(const Tavole& tavole);
  // By the year of the document; pairs of the field `sigla` where the master has them.
  void Assegna(Documento& documento, QStringView sigla, Sorte& sorte) const;

  // Pairs that the export reports: a descriptor that does not go with its code, a free term that
  // does, and one that does not.
  [[nodiscard]] std::vector<Classe> DaSegnalare(Sorte& sorte) const;

 private:
  void AssegnaCoppie(Documento& documento, QStringView sigla, Sorte& sorte) const;
  [[nodiscard]] Coppia NonValida(Sorte& sorte) const;
  const Tavole& tavole_;
  std::map<QString, std::vector<Coppia>> perSigla_;
};

}  // namespace torvi::esempio
