#include "cli/richiesta_fonte.h"

#include <algorithm>

#include "archive/errore.h"
#include "fonti/voci_altra.h"
#include "fonti/voci_interna.h"
#include "shell/guardia.h"

namespace torvi {
namespace {

using Atti = std::optional<QStringList>;

Atti AttiInterna(const Database& archivio, const ControlliFonte& controlli) {
  const VoceInterna* voce = TrovaVoceInterna(controlli.indice, controlli.ComboFonte);
  if (voce == nullptr || voce->liv2 == nullptr) return {};
  const auto schede = SchedeInterna();
  const auto scheda = std::ranges::find(schede, controlli.indice, &SchedaInterna::indice);
  return ListaFonteInterna(archivio, QLatin1String(scheda->liv1), QLatin1String(voce->liv2));
}

Atti AttiAltra(const Database& archivio, const ControlliFonte& controlli) {
  const VoceAltra* voce = TrovaVoceAltra(controlli.indice, controlli.ComboFonte);
  const bool elenco =
      voce != nullptr && (voce->atto == Atto::Elenco || voce->atto == Atto::ElencoOVoce);
  return elenco ? Atti(ListaFonteAltra(archivio, *voce)) : std::nullopt;
}

constexpr FormaFonte kForme[] = {{"interna", SalvaFonteInterna, ControlliInterna, AttiInterna},
                                 {"altra", SalvaFonteAltra, ControlliAltra, AttiAltra}};

void VerificaAtto(const FormaFonte& forma, const Database& archivio, const ControlliFonte& dati) {
  if (!dati.lstFonte) return;
  const Atti atti = forma.atti(archivio, dati);
  if (!atti || atti->contains(*dati.lstFonte)) return;
  throw ErroreEsecuzione(Errore::ValoreProprietaNonValido,
                         QStringLiteral("\"%1\" non è nell'elenco degli atti di \"%2\"")
                             .arg(*dati.lstFonte, dati.ComboFonte));
}

}  // namespace

const FormaFonte* TrovaForma(const QString& nome) {
  const auto* trovata = std::ranges::find_if(
      kForme, [&nome](const FormaFonte& forma) { return nome == QLatin1String(forma.nome); });
  return trovata == std::end(kForme) ? nullptr : trovata;
}

QJsonObject ComponiRichiesta(const FormaFonte& forma, StatoGlobale& stato,
                             const QJsonObject& richiesta) {
  DialoghiRegistrati dialoghi(richiesta.value(QStringLiteral("risposte")).toArray());
  stato.NuovaFonte = richiesta.value(QStringLiteral("NuovaFonte")).toBool(true);
  stato.RigheFonte.clear();
  QJsonValue risultato = QStringLiteral("errore");
  Esegui(dialoghi, [&] {
    const ControlliFonte controlli =
        forma.leggi(richiesta.value(QStringLiteral("controlli")).toObject());
    VerificaAtto(forma, stato.DbArchivio, controlli);
    risultato = static_cast<int>(forma.salva(stato, dialoghi, controlli));
  });
  const bool tolta = stato.RigheFonte.empty();
  return {{QStringLiteral("risultato"), risultato},
          {QStringLiteral("messaggi"), dialoghi.Messaggi()},
          {QStringLiteral("riga"), tolta ? QJsonValue() : JsonFonte(stato.RigheFonte.back())}};
}

}  // namespace torvi
