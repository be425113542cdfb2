// A statement of the system's dialect, told apart into its clauses.
#pragma once

#include <QStringView>
#include <vector>

#include "archive/lessico.h"

namespace torvi {

struct VoceElenco {
  Brano espressione;
  QString alias;
};

struct TabellaCitata {
  QString nome;
  QString citazione;  // the name that its columns are qualified by: the alias, or `nome`
};

struct TermineOrdine {
  Brano espressione;
  bool discendente = false;
};

enum class TipoIstruzione { Selezione, Cancellazione, Aggiornamento };

struct Clausole {
  TipoIstruzione tipo = TipoIstruzione::Selezione;
  bool distinte = false;
  std::vector<VoceElenco> elenco;
  std::vector<TabellaCitata> tabelle;  // in the order of FROM, joins taken apart
  std::vector<Brano> assegnazioni;     // the terms of SET
  std::vector<Brano> condizioni;       // those of the joins first, then WHERE: all must hold
  std::vector<Brano> gruppi;
  Brano condizioneGruppi;
  std::vector<TermineOrdine> ordine;
};

// The pieces point into `simboli`. A clause that is missing, empty or out of place, a bracket
// without its twin: error 3075 with `istruzione`.
[[nodiscard]] Clausole Dividi(Brano simboli, QStringView istruzione);

}  // namespace torvi
