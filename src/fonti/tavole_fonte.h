// The tables that a source points to: the catalogues that name kinds of act, and the small tables
// that name places and bodies.
#pragma once

#include <span>

#include "shell/righe.h"

namespace torvi {

struct Catalogo {
  const char* tabella;
  const char* chiave;
  const char* nome;  // the column, and the index on it
};

// What the operator is asked about a name that a small table lacks.
struct DomandaVoce {
  const char* testo;
  const char* etichetta;  // of the extended form; null where there is none
  const char* estesa;     // column of the extended form
};

struct TavolaNomi {
  const char* tabella;
  const char* chiave;
  const char* nome;     // the column, and the index on it
  const char* colonna;  // of TabFonte
  QString RigaFonte::*campo;
  DomandaVoce domanda;  // without a text where the table is fixed
};

// A text column of TabFonte and the field that it holds as it stands.
struct ColonnaFonte {
  const char* colonna;
  QString RigaFonte::*campo;
};
// From the article to the year, in the order of TabFonte's look-up.
[[nodiscard]] std::span<const ColonnaFonte> ColonneFonte();

using ElencoTavole = std::span<const TavolaNomi* const>;

// Where the names of a source stand, by its code. A catalogue is null where the kind has none.
struct TavoleFonte {
  const Catalogo* catalogo = nullptr;
  ElencoTavole nomi;
};

// What the load reads: internal law needs its catalogue row, other kinds may lack theirs.
[[nodiscard]] TavoleFonte TavoleDaLeggere(const QString& tp);
// What the save looks up, in this order.
[[nodiscard]] TavoleFonte TavoleDaCercare(const QString& tp);

}  // namespace torvi
