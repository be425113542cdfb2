// A delivery with one document, its sources, and the two writers of sources run on it.
#pragma once

#include <functional>

#include "export/fonte_letta.h"
#include "export/scritto.h"

namespace torvi {

class FontiDiProva {
 public:
  explicit FontiDiProva(const DatiConsegna& dati = {});

  CartellaDiProva cartella;
  StatoGlobale stato;

  qint64 Riga(const char* tabella, Valori valori) const;
  // One source more of the document. Result: its `IDFonte`.
  qint64 Fonte(Valori valori) const;
  void TogliFonti() const;
  // mdb/"catalogo norme.mdb" with one act: 7 August 1990, number 241.
  void NuovoCatalogo(const char* abbreviazione) const;

  // A fresh run with its own files; errors of `scrittore` are caught.
  Scritto Scrivi(const std::function<void(ContestoEsportazione&)>& scrittore);
  // The sources of the document, as a run reads them.
  [[nodiscard]] static std::span<const FonteLetta> Fonti(ContestoEsportazione& contesto);
  [[nodiscard]] Scritto Elenco();
  [[nodiscard]] Scritto Etichettate();

 private:
  // One write for the rows between two runs: a run sees what is written.
  std::optional<UnitaDiScrittura> unita_{std::in_place, stato.DbArchivio};
};

}  // namespace torvi
