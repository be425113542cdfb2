#include "report/consegna_in_anticipo.h"

#include "archive/errore.h"
#include "archive/jet.h"
#include "archive/verifica.h"
#include "shell/consegna.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

std::unique_ptr<ConsegnaPronta> Leggi(const QString& percorso) {
  try {
    const QString trovato = TrovaPercorso(percorso);
    if (EFileJet(trovato)) return nullptr;
    StatoGlobale suo;
    suo.DbArchivio = OpenDatabase(trovato);
    RichiediArchivio(suo.DbArchivio);
    LeggiInfoConsegna(suo);
    auto pronta = std::make_unique<ConsegnaPronta>(suo.DbArchivio);
    pronta->fonti.Comincia();
    pronta->condivise.LeggiTutte(suo.PrefissoDoc.left(4));
    return pronta;
  } catch (const ErroreEsecuzione&) {
    return nullptr;
  }
}

}  // namespace

void ConsegnaInAnticipo::Prepara(const QString& percorso) {
  percorso_ = percorso;
  lettura_ = std::async(std::launch::async, Leggi, percorso);
}

std::unique_ptr<ConsegnaPronta> ConsegnaInAnticipo::Prendi(const QString& percorso) {
  if (!lettura_.valid()) return nullptr;
  std::unique_ptr<ConsegnaPronta> pronta = lettura_.get();
  return percorso == percorso_ ? std::move(pronta) : nullptr;
}

}  // namespace torvi
