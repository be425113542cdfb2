// The columns of `TabInfo` that tell which control functions were used on a delivery.
#pragma once

#include <QLatin1StringView>
#include <array>

namespace torvi {

struct Marcatore {
  QLatin1StringView codice;
  const char* colonna;
  QLatin1StringView etichetta;  // as the operator reads it
};

inline constexpr std::array kMarcatori = {
    Marcatore{QLatin1StringView("1"), "Storico", QLatin1StringView("'Storico'")},
    Marcatore{QLatin1StringView("2"), "CELEX",
              QLatin1StringView("'Stampa HTML per controllo Celex'")},
    Marcatore{QLatin1StringView("3"), "StampaCompleta", QLatin1StringView("'Stampa completa'")},
    Marcatore{QLatin1StringView("4"), "StampaSoloTesto", QLatin1StringView("'Stampa campi testi'")},
    Marcatore{QLatin1StringView("5"), "StampaConsistenze",
              QLatin1StringView("'Stampa consistenze'")},
    Marcatore{QLatin1StringView("6"), "StampaProspetto", QLatin1StringView("'Stampa prospetto'")},
    Marcatore{QLatin1StringView("7"), "VisualizzaErroriGenerici",
              QLatin1StringView("'Visualizza errori generici'")},
    Marcatore{QLatin1StringView("8"), "VisualizzaErroriClasse",
              QLatin1StringView("'Visualizza errori classificazione'")},
    Marcatore{QLatin1StringView("9"), "VisualizzaErroriFonti",
              QLatin1StringView("'Visualizza errori fonti'")},
};

}  // namespace torvi
