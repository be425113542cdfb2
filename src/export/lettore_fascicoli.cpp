#include "export/lettore_fascicoli.h"

namespace torvi {

RigheCondivise RigheRiferimenti() {
  return {.istruzione = QStringLiteral("select * from tabRifBibl, tabRivista where "
                                       "tabRifBibl.IDRivista = tabRivista.IDRivista"),
          .condizione = QStringLiteral(" and tabRifBibl.IDRifBibl = ?"),
          .chiave = "IDRifBibl",
          .massimo = 512};
}

}  // namespace torvi
