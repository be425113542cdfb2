#include "fonti/modifica_fonte.h"

#include "fonti/righe_fonte.h"

namespace torvi {

QString TestoDaModificare(const RigaFonte& riga) {
  RigaFonte mostrata = riga;
  mostrata.Cancellata = false;
  return RigaLista(mostrata);
}

void ModificaFonte(RigaFonte& riga, RigaFonte scritta) {
  scritta.Testo = SenzaCodice(scritta.Testo);
  scritta.IDFonte = riga.IDFonte;
  scritta.Marca = riga.Marca;
  scritta.Cancellata = riga.Cancellata;
  riga = std::move(scritta);
}

}  // namespace torvi
