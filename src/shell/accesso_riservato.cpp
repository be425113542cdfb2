#include "shell/accesso_riservato.h"

#include <algorithm>

namespace torvi {

bool AccessoRiservato(StatoGlobale& stato, Dialoghi& dialoghi, const QString& rifiuto) {
  stato.LoginRiservato = dialoghi.ChiediLogin(stato.PasswordRiservata);
  if (!stato.LoginRiservato) dialoghi.Messaggio(rifiuto);
  return stato.LoginRiservato;
}

std::chrono::seconds PausaDopo(int errate) {
  constexpr int kSviste = 2;
  constexpr int kRaddoppi = 6;  // beyond the longest pause, and far from an overflow
  if (errate < kSviste) return std::chrono::seconds(0);
  return std::min(std::chrono::seconds(1 << std::min(errate - kSviste, kRaddoppi)),
                  std::chrono::seconds(60));
}

}  // namespace torvi
