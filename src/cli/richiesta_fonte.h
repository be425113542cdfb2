// The save of one source on an entry form, asked for and answered in JSON: one line of `torvi
// componi`.
#pragma once

#include "cli/json_fonte.h"
#include "fonti/anteprima.h"

namespace torvi {

// A form, by the name that torvi gives it.
struct FormaFonte {
  const char* nome;
  SalvaFonte salva;
  ControlliFonte (*leggi)(const QJsonObject&);
  // The acts that may be selected; empty where the kind takes none from its list.
  std::optional<QStringList> (*atti)(const Database&, const ControlliFonte&);
};
// Null where there is no such form.
[[nodiscard]] const FormaFonte* TrovaForma(const QString& nome);

// Takes "controlli", "NuovaFonte" and "risposte"; gives "risultato", "messaggi" and "riga". A
// run-time error is a message, with "errore" as the result; an act that is not in the list of its
// kind, which a form would not let be selected, is error 380. Nothing is thrown.
[[nodiscard]] QJsonObject ComponiRichiesta(const FormaFonte& forma, StatoGlobale& stato,
                                           const QJsonObject& richiesta);

}  // namespace torvi
