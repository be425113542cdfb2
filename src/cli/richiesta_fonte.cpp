#include "cli/richiesta_fonte.h"

#include <algorithm>

#include "shell/guardia.h"

namespace torvi {
namespace {

constexpr FormaFonte kForme[] = {{"interna", SalvaFonteInterna, ControlliInterna},
                                 {"altra", SalvaFonteAltra, ControlliAltra}};

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
    risultato = static_cast<int>(forma.salva(stato, dialoghi, controlli));
  });
  const bool tolta = stato.RigheFonte.empty();
  return {{QStringLiteral("risultato"), risultato},
          {QStringLiteral("messaggi"), dialoghi.Messaggi()},
          {QStringLiteral("riga"), tolta ? QJsonValue() : JsonFonte(stato.RigheFonte.back())}};
}

}  // namespace torvi
