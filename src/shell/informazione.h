// The data of a new delivery: what frmInformazione offers, accepts and gives back.
#pragma once

#include <QString>
#include <QStringList>

namespace torvi {

// What the combos show until something is chosen.
[[nodiscard]] QString SegnapostoCentro();
[[nodiscard]] QString SegnapostoAnno();

// The 35 centres in their order, J, K and I included as they stand.
[[nodiscard]] QStringList VociCentro();
// From the year before to four years on.
[[nodiscard]] QStringList VociAnno(int annoCorrente);

// What the four controls show.
struct CampiInformazione {
  QString consegna;
  QString inizio;
  QString centro;
  QString anno;
};

// All four filled, and the combos past their placeholders.
[[nodiscard]] bool Completi(const CampiInformazione& campi);
// Consegna, inizio, centro and anno joined by '|'.
[[nodiscard]] QString Unisci(const CampiInformazione& campi);

}  // namespace torvi
