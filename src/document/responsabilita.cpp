#include "document/responsabilita.h"

#include "archive/campo.h"
#include "archive/errore.h"
#include "shell/valori.h"

namespace torvi {
namespace {

std::size_t Posto(const StatoGlobale& stato, qint16 indiceResponsabilita) {
  const auto posto = static_cast<std::size_t>(indiceResponsabilita);
  if (posto >= stato.RigheResponsabilita.size()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  return posto;
}

RigaResponsabilita& AggiungeRiga(std::vector<RigaResponsabilita>& righe) {
  (void)Intero16(static_cast<qint64>(righe.size()) + 1);
  RigaResponsabilita& riga = righe.emplace_back();
  riga.Nuova = true;
  return riga;
}

}  // namespace

CampiResponsabilita CampiDellaRiga(const StatoGlobale& stato, qint16 indiceResponsabilita) {
  const RigaResponsabilita& riga = stato.RigheResponsabilita[Posto(stato, indiceResponsabilita)];
  return {riga.PrimoElemento, riga.SecondoElemento, riga.flagAutore};
}

void EsciResponsabilita(StatoGlobale& stato, qint16 indiceResponsabilita,
                        const CampiResponsabilita& campi) {
  std::vector<RigaResponsabilita>& righe = stato.RigheResponsabilita;
  RigaResponsabilita& riga =
      indiceResponsabilita < 0 ? AggiungeRiga(righe) : righe[Posto(stato, indiceResponsabilita)];
  riga.PrimoElemento = Trim(campi.txtElementoPr);
  riga.SecondoElemento = Trim(campi.txtElementoSec);
  riga.flagAutore = campi.optAutore;
}

}  // namespace torvi
