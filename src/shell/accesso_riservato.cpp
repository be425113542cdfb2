#include "shell/accesso_riservato.h"

namespace torvi {

bool AccessoRiservato(StatoGlobale& stato, Dialoghi& dialoghi, const QString& rifiuto) {
  stato.LoginRiservato = dialoghi.ChiediLogin(stato.PasswordRiservata);
  if (!stato.LoginRiservato) dialoghi.Messaggio(rifiuto);
  return stato.LoginRiservato;
}

}  // namespace torvi
