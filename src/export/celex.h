// The CELEX number of an EU act.
#pragma once

#include <QString>

#include "archive/recordset.h"
#include "export/fonte_letta.h"
#include "export/tabelle_di_codici.h"
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
// The number of a source of that kind, a row of TabFonteCom; the treaty that was renumbered is
// taken in the version of the production year (PrefissoDoc). Empty without a sector. A source whose
// own number is beyond 32767: error 6.
[[nodiscard]] QString CelexDaFonte(const StatoGlobale& stato, const FonteLetta& fonte,
                                   const RigaCodice& tipo);

}  // namespace torvi
