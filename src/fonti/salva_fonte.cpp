#include "fonti/salva_fonte.h"

#include <algorithm>

#include "archive/campo.h"
#include "archive/errore.h"
#include "fonti/componi_altra.h"
#include "fonti/componi_interna.h"
#include "fonti/righe_fonte.h"
#include "fonti/voci_altra.h"
#include "fonti/voci_interna.h"

namespace torvi {
namespace {

// Whether there is something to compose, after the message where there is not.
bool FonteImmessa(const ControlliFonte& controlli, const QString& testata, Dialoghi& dialoghi) {
  if (controlli.ComboFonte != testata) return true;
  dialoghi.Messaggio(QStringLiteral("Nessuna fonte immessa!"), QStringLiteral("Attenzione"));
  return false;
}

RigaFonte& NuovaRiga(StatoGlobale& stato) {
  const auto quante = static_cast<qint64>(stato.RigheFonte.size());
  static_cast<void>(Intero16(quante + 1));
  AzzeraFonte(stato.RigheFonte.emplace_back());
  return stato.RigheFonte.back();
}

// On the tabs of codes the kind is the act itself.
bool VoceNota(const ControlliFonte& controlli) {
  const bool codici = controlli.indice == 1 || controlli.indice == 4;
  return codici || TrovaVoceInterna(controlli.indice, controlli.ComboFonte) != nullptr;
}

EsitoFonte ComponiInterna(const ControlliFonte& controlli, RigaFonte& riga, Dialoghi& dialoghi) {
  switch (controlli.indice) {
    case 2:
      return ComponiNormativa(controlli, riga, dialoghi);
    case 3:
      return ComponiGiurisprudenza(controlli, riga, dialoghi);
    default:
      return ComponiCodificazione(controlli, riga);
  }
}

EsitoFonte ComponiAltra(const StatoGlobale& stato, const ControlliFonte& controlli,
                        const VoceAltra& voce, const QString& atto, RigaFonte& riga,
                        Dialoghi& dialoghi) {
  const QString codice = QLatin1String(voce.codice);
  switch (voce.indice) {
    case 0:
      return ComponiInternazionale(controlli, codice, stato.DbArchivio, riga, dialoghi);
    case 1:
      return ComponiComunitario(controlli, codice, riga, dialoghi);
    case 2:
      return ComponiStraniero(controlli, codice, riga, dialoghi);
    case 3:
      return ComponiCanonico(controlli, codice, riga, dialoghi);
    default:
      return ComponiStorica(controlli, atto, riga, dialoghi);
  }
}

}  // namespace

EsitoFonte SalvaFonteInterna(StatoGlobale& stato, Dialoghi& dialoghi,
                             const ControlliFonte& controlli) {
  const auto schede = SchedeInterna();
  const auto scheda = std::ranges::find(schede, controlli.indice, &SchedaInterna::indice);
  if (scheda == schede.end()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  if (!FonteImmessa(controlli, QString::fromUtf16(scheda->titolo), dialoghi))
    return EsitoFonte::Tolta;
  if (!stato.NuovaFonte) return EsitoFonte::Tolta;
  if (!VoceNota(controlli)) throw ErroreEsecuzione(Errore::ChiamataNonValida, controlli.ComboFonte);
  const EsitoFonte esito = ComponiInterna(controlli, NuovaRiga(stato), dialoghi);
  if (esito == EsitoFonte::Tolta) stato.RigheFonte.pop_back();
  return esito;
}

EsitoFonte SalvaFonteAltra(StatoGlobale& stato, Dialoghi& dialoghi,
                           const ControlliFonte& controlli) {
  const auto schede = SchedeAltra();
  if (controlli.indice < 0 || static_cast<std::size_t>(controlli.indice) >= schede.size()) {
    throw ErroreEsecuzione(Errore::IndiceNonValido);
  }
  const QString testata = QString::fromUtf16(schede[static_cast<std::size_t>(controlli.indice)]);
  if (!FonteImmessa(controlli, testata, dialoghi)) return EsitoFonte::Tolta;
  if (!stato.NuovaFonte) return EsitoFonte::Tolta;
  const VoceAltra* voce = TrovaVoceAltra(controlli.indice, controlli.ComboFonte);
  if (voce == nullptr) throw ErroreEsecuzione(Errore::ChiamataNonValida, controlli.ComboFonte);
  RigaFonte& riga = NuovaRiga(stato);
  const auto atto = AttoScelto(*voce, controlli.lstFonte, controlli.txtLibero);
  if (!atto) {
    dialoghi.Messaggio(QStringLiteral("Manca l'atto!"));
    stato.RigheFonte.pop_back();
    return EsitoFonte::Tolta;
  }
  return ComponiAltra(stato, controlli, *voce, *atto, riga, dialoghi);
}

QStringList RigheDopoAltra(StatoGlobale& stato) {
  QStringList linee;
  for (std::size_t posto = 0; posto < stato.RigheFonte.size(); ++posto) {
    RigaFonte riga = stato.RigheFonte[posto];
    riga.Cancellata = false;
    if (RigaLista(riga, RegolaLista::DopoAltra).isEmpty()) {
      stato.RigheFonte.pop_back();
      continue;
    }
    linee += RigaLista(stato.RigheFonte[posto], RegolaLista::DopoAltra);
  }
  return linee;
}

}  // namespace torvi
