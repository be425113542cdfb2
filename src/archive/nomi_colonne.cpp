#include "archive/nomi_colonne.h"

#include <algorithm>
#include <functional>

#include "archive/errore.h"

namespace torvi {
namespace {

char Minuscolo(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool Uguali(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return Minuscolo(x) == Minuscolo(y);
         });
}

}  // namespace

int NomiColonne::Posizione(std::string_view nome) const {
  const auto indirizzo = std::hash<const char*>()(nome.data()) % ricordate_.size();
  // The memory is only a hint: at the same address there may be another text by now.
  const std::size_t ricordata = ricordate_[indirizzo];
  if (ricordata < grafie_.size() && grafie_[ricordata].nome == nome) {
    return grafie_[ricordata].posizione;
  }
  const int posizione = Cerca(nome);
  if (posizione < 0) return posizione;
  auto grafia = std::ranges::find(grafie_, nome, &Grafia::nome);
  if (grafia == grafie_.end()) {
    grafia = grafie_.insert(grafie_.end(), {std::string(nome), posizione});
  }
  ricordate_[indirizzo] = static_cast<quint16>(grafia - grafie_.begin());
  return posizione;
}

int NomiColonne::Cerca(std::string_view nome) const {
  for (std::size_t i = 0; i < nomi_.size(); ++i) {
    if (Uguali(nomi_[i], nome)) return static_cast<int>(i);
  }
  return -1;
}

int NomiColonne::Richiedi(std::string_view nome) const {
  const int posizione = Posizione(nome);
  if (posizione >= 0) return posizione;
  QString colonna = QString::fromUtf8(nome.data(), static_cast<qsizetype>(nome.size()));
  if (tabelle_.size() == 1) colonna.prepend(tabelle_.front() + QLatin1Char('.'));
  if (tabelle_.size() > 1) {
    colonna += QStringLiteral(" (%1)").arg(tabelle_.join(QLatin1String(", ")));
  }
  throw ErroreEsecuzione(Errore::CampoNonTrovato, colonna);
}

}  // namespace torvi
