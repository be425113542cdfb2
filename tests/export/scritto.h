// Field writers run as the driver runs them, and what they leave.
#pragma once

#include <functional>
#include <string>

#include "comune/cartella_di_prova.h"
#include "export/contesto.h"

namespace torvi {

struct Scritto {
  std::string campi;   // each field as tag and content, one a line
  std::string errori;  // the messages as they stand in their files
  std::string errClasse;
  std::string errFonte;
  int errore = 0;  // the run-time error that ended it
};

[[nodiscard]] Scritto Scrivi(const CartellaDiProva& cartella, StatoGlobale& stato,
                             const std::function<void(ContestoEsportazione&)>& scrittore);

// mdb/"catalogo norme.mdb" with one act: 7 August 1990, number 241.
void CatalogoConUnAtto(const CartellaDiProva& cartella, const char* abbreviazione);

}  // namespace torvi
