#include "fonti/composizione.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

constexpr Pezzo kArticolo[] = {
    {u"art. ", &C::txtArt, &R::Articolo},   {u" ", &C::ComboRipA, &R::RipA},
    {u" comma ", &C::txtComma, &R::Comma},  {u" ", &C::ComboRipC, &R::RipC},
    {u" lett. ", &C::txtLett, &R::Lettera}, {u" n. ", &C::txtNumP, &R::NumeroP},
};

constexpr Pezzo kEstremi[] = {
    {u" ", &C::txtGG, &R::Giorno},
    {u" ", &C::ComboMese, &R::Mese},
    {u" ", &C::txtAA, &R::Anno},
    {u", n. ", &C::txtN, &R::Numero},
};

constexpr Pezzo kTestoLibero[] = {{u" (", &C::txtLibero, &R::Altro, u")"}};

struct Segnaposto {
  QString C::*controllo;
  const QString& testo;
};
const Segnaposto kSegnaposti[] = {
    {&C::ComboRipA, kRipartizione},
    {&C::ComboRipC, kRipartizione},
    {&C::ComboMese, kMese},
    {&C::ComboRegione, kRegione},
};

}  // namespace

bool Riempito(const ControlliFonte& controlli, QString ControlliFonte::*controllo) {
  for (const Segnaposto& segnaposto : kSegnaposti) {
    if (segnaposto.controllo == controllo) return controlli.*controllo != segnaposto.testo;
  }
  return !(controlli.*controllo).isEmpty();
}

void Aggiungi(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
              std::span<const Pezzo> pezzi) {
  for (const Pezzo& pezzo : pezzi) {
    if (!Riempito(controlli, pezzo.controllo)) continue;
    const QString valore = (controlli.*pezzo.controllo).left(pezzo.caratteri);
    testo += QStringView(pezzo.prima) + valore + QStringView(pezzo.dopo);
    riga.*pezzo.campo = valore;
  }
}

bool AggiungiRichiesto(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                       const Pezzo& pezzo, const QString& mancanza, Dialoghi& dialoghi) {
  if (!Riempito(controlli, pezzo.controllo)) {
    dialoghi.Messaggio(mancanza);
    return false;
  }
  Aggiungi(testo, riga, controlli, {&pezzo, 1});
  return true;
}

std::span<const Pezzo> Articolo() { return kArticolo; }
std::span<const Pezzo> Data() { return std::span(kEstremi).first(3); }
std::span<const Pezzo> Estremi() { return kEstremi; }
std::span<const Pezzo> TestoLibero() { return kTestoLibero; }

void AggiungiNome(QString& testo, const QString& nome) {
  if (!testo.isEmpty()) testo += QLatin1Char(' ');
  testo += nome;
}

QString SpaziSingoli(QString testo) {
  return testo.replace(QLatin1String("  "), QLatin1String(" "));
}

}  // namespace torvi
