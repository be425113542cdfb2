// The CELEX number of an EU act.
#pragma once

#include <QString>

#include "archive/recordset.h"
#include "shell/stato_globale.h"

namespace torvi {

// What the number is built from: columns of `TabFonteCom` and of the source, Null as the empty
// text.
struct DatiCelex {
  QString Settore;
  QString Codice;
  QString Articolo;
  QString AnnoF;
  QString Altro;
  QString Numero;
  QString Anno;
  bool Ordinanza = false;
};

// The same from a row that joins a source with its kind, which has a sector.
[[nodiscard]] DatiCelex LeggiDatiCelex(const Recordset& fonte);

// By sector: treaties "1", derived law "3", case law "6". Empty for any other sector and for a
// treaty without an article; a single blank for a case whose court or number is not to be found.
[[nodiscard]] QString NumeroCelex(const DatiCelex& dati);
// The number of a stored source, the treaty that was renumbered taken in the version of the
// production year (PrefissoDoc). Empty without a sector, a single blank without a source.
[[nodiscard]] QString CelexDaFonte(const StatoGlobale& stato, qint16 idFonte);

}  // namespace torvi
