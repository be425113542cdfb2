#include "archive/esempio/classi.h"

#include <algorithm>

namespace torvi::esempio {

namespace {

bool Uguali(const Coppia& a, const Coppia& b) {
  return a.sistematico == b.sistematico && a.descrittore == b.descrittore && a.libero == b.libero;
}

void Aggiungi(std::vector<Classe>& classi, const Coppia& coppia, char check) {
  const bool presente = std::any_of(classi.begin(), classi.end(), [&](const Classe& classe) {
    return Uguali(classe.coppia, coppia);
  });
  if (!presente) classi.push_back({coppia, check});
}

}  // namespace

Classificazione::Classificazione(const Tavole& tavole) : tavole_(tavole) {
  for (const Coppia& coppia : tavole.coppie) perSigla_[coppia.sigla].push_back(coppia);
}

void Classificazione::Assegna(Documento& documento, QStringView sigla, Sorte& sorte) const {
  if (documento.Anno() >= QLatin1String("2000")) {
    AssegnaCoppie(documento, sigla, sorte);
    return;
  }
  const int quante = sorte.Tra(1, 3);
  const int prima = sorte.Fino(static_cast<int>(tavole_.classi1999.size()));
  for (int i = 0; i < quante; ++i) {
    const auto posto = static_cast<std::size_t>(prima + i * 5) % tavole_.classi1999.size();
    documento.classi1999.push_back(tavole_.classi1999[posto]);
  }
}

void Classificazione::AssegnaCoppie(Documento& documento, QStringView sigla, Sorte& sorte) const {
  const auto diArea = perSigla_.find(sigla.toString());
  const std::vector<Coppia>& coppie = diArea == perSigla_.end() ? tavole_.coppie : diArea->second;
  const int quante = sorte.Tra(1, 4);
  for (int i = 0; i < quante; ++i) {
    Coppia coppia = sorte.Scegli(coppie);
    if (sorte.Una(8)) coppia.descrittore = 0;  // the code alone
    Aggiungi(documento.classi, coppia, '0');
  }
  // Pairs of one code stand together.
  std::stable_sort(
      documento.classi.begin(), documento.classi.end(),
      [](const Classe& a, const Classe& b) { return a.coppia.sistematico < b.coppia.sistematico; });
  if (sorte.Una(15)) Aggiungi(documento.classi, sorte.Scegli(tavole_.coppieAsterisco), '2');
}

Coppia Classificazione::NonValida(Sorte& sorte) const {
  for (;;) {
    Coppia coppia{
        sorte.Scegli(tavole_.sistematici).id, sorte.Scegli(tavole_.descrittori).id, {}, {}};
    const bool valida = std::any_of(tavole_.coppie.begin(), tavole_.coppie.end(),
                                    [&](const Coppia& una) { return Uguali(una, coppia); });
    if (!valida) return coppia;
  }
}

std::vector<Classe> Classificazione::DaSegnalare(Sorte& sorte) const {
  const Coppia asterisco = sorte.Scegli(tavole_.coppieAsterisco);
  const Coppia nuovo{asterisco.sistematico, 0, QStringLiteral("*termine da proporre"), {}};
  return {{NonValida(sorte), '1'}, {asterisco, '2'}, {nuovo, '3'}};
}

}  // namespace torvi::esempio
