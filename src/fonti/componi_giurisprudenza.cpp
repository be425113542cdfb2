#include <algorithm>

#include "archive/errore.h"
#include "fonti/componi_interna.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

constexpr Pezzo kCitta = {u" ", &C::txtInfo1, &R::Citta};
constexpr Pezzo kCittaDopoTrattino = {u" - ", &C::txtInfo1, &R::Citta};
constexpr Pezzo kSezione = {u" ", &C::txtInfo2, &R::Sezione};
constexpr Pezzo kAltro = {u" ", &C::txtInfo3, &R::Altro};
constexpr Pezzo kCodiceRegione = {u" ", &C::ComboRegione, &R::Regione, u"", 2};

constexpr Pezzo kCassazione[] = {kSezione};
constexpr Pezzo kOrdinaria[] = {kAltro, kCitta, kSezione};
constexpr Pezzo kTributaria[] = {kCodiceRegione, kCittaDopoTrattino, kSezione};
constexpr Pezzo kConti[] = {kCodiceRegione, kSezione};
constexpr Pezzo kSpeciale[] = {kCodiceRegione, kCittaDopoTrattino};
constexpr Pezzo kAlternative[] = {kCitta, kAltro};
constexpr Pezzo kSportiva[] = {{u" (", &C::txtInfo3, &R::Altro, u")"}};

constexpr std::span<const Pezzo> kNessuno;

struct Regola {
  const char16_t* voce;
  const char* tp;           // null: told by the court's name
  const char16_t* giudice;  // null: the one selected in the list
  std::span<const Pezzo> pezzi;
  std::span<const Pezzo> dopoLaData = kNessuno;
  bool decisione = true;  // orders and decrees are told from judgments
};
constexpr char16_t kVoceOrdinaria[] = u"Giurisprudenza ordinaria";
constexpr char16_t kVoceTributaria[] = u"Giurisprudenza tributaria";
constexpr char16_t kVoceAmministrativa[] = u"Giurisprudenza amministrativa";
constexpr char16_t kVoceSpeciale[] = u"Giurisprudenza speciale";
constexpr Regola kRegole[] = {
    {u"Corte costituzionale", "GICO", u"C. Cost.", kNessuno},
    {u"Consiglio di giurisdizione della Camera dei Deputati", "GICD", u"Cons. giurisd. Camera",
     kNessuno},
    {u"Corte suprema di Cassazione", "GICA", u"Cass.", kCassazione},
    {kVoceOrdinaria, "GIO", nullptr, kOrdinaria},
    {kVoceTributaria, "GIT", nullptr, kTributaria},
    {u"Corte dei Conti", "GICC", u"C. Conti", kConti},
    {kVoceAmministrativa, "GIA", nullptr, kTributaria},
    {kVoceSpeciale, nullptr, nullptr, kSpeciale},
    {u"Forme di risoluzione delle controversie alternative alla giurisdizione", "GIAL", nullptr,
     kAlternative},
    {u"Giurisprudenza sportiva", "GIS", u"giur. sport", kNessuno, kSportiva, false},
};

// What a court needs besides its name.
struct Bisogno {
  const char16_t* voce;
  const char16_t* giudice;  // empty: any
  QString C::*controllo;
  const char16_t* mancanza;
};
constexpr Bisogno kBisogni[] = {
    {kVoceOrdinaria, u"", &C::txtInfo1, u"Manca la città!"},
    {kVoceTributaria, u"Commissione tributaria di II grado", &C::txtInfo1, u"Manca la città!"},
    {kVoceTributaria, u"Commissione tributaria di I grado", &C::txtInfo1, u"Manca la città!"},
    {kVoceTributaria, u"Commissione tributaria provinciale", &C::txtInfo1, u"Manca la città!"},
    {kVoceTributaria, u"Commissione tributaria regionale", &C::ComboRegione, u"Manca la regione!"},
    {kVoceAmministrativa, u"Tribunale amministrativo regionale", &C::ComboRegione,
     u"Manca la regione!"},
    {kVoceSpeciale, u"Trib. Acque", &C::ComboRegione, u"Manca la regione!"},
};

const Regola& TrovaRegola(const QString& voce) {
  const auto* regola = std::ranges::find_if(
      kRegole, [&voce](const Regola& r) { return voce == QStringView(r.voce); });
  if (regola == std::end(kRegole)) throw ErroreEsecuzione(Errore::ChiamataNonValida, voce);
  return *regola;
}

// The message of what is missing first; empty where nothing is.
QString Mancanza(const ControlliFonte& controlli, const Regola& regola) {
  if (regola.giudice != nullptr) return {};
  if (!controlli.lstFonte) return QStringLiteral("Manca l'atto!");
  for (const Bisogno& bisogno : kBisogni) {
    const QStringView giudice(bisogno.giudice);
    const bool riguarda = controlli.ComboFonte == QStringView(bisogno.voce) &&
                          (giudice.isEmpty() || *controlli.lstFonte == giudice);
    if (riguarda && !Riempito(controlli, bisogno.controllo)) {
      return QString::fromUtf16(bisogno.mancanza);
    }
  }
  return {};
}

QString CodiceSpeciale(const QString& giudice) {
  if (giudice.contains(QLatin1String("acque"), Qt::CaseInsensitive)) return QStringLiteral("GIQ");
  const bool brevetti = giudice.contains(QLatin1String("brevetti"), Qt::CaseInsensitive);
  return brevetti ? QStringLiteral("GIB") : QStringLiteral("GIM");
}

// A decree hides an order.
QString Decisione(const ControlliFonte& controlli, RigaFonte& riga) {
  riga.Decreto = controlli.chkDecr;
  riga.Ordinanza = controlli.chkOrd && !controlli.chkDecr;
  if (riga.Decreto) return QStringLiteral("decr.");
  return riga.Ordinanza ? QStringLiteral("ord.") : QString();
}

}  // namespace

EsitoFonte ComponiGiurisprudenza(const ControlliFonte& controlli, RigaFonte& riga,
                                 Dialoghi& dialoghi) {
  const Regola& regola = TrovaRegola(controlli.ComboFonte);
  const QString mancanza = Mancanza(controlli, regola);
  if (!mancanza.isEmpty()) {
    dialoghi.Messaggio(mancanza);
    return EsitoFonte::Tolta;
  }
  const QString giudice =
      regola.giudice != nullptr ? QString::fromUtf16(regola.giudice) : *controlli.lstFonte;
  QString testo = regola.decisione ? Decisione(controlli, riga) : QString();
  AggiungiNome(testo, giudice);
  Aggiungi(testo, riga, controlli, regola.pezzi);
  AggiungiEstremi(testo, riga, controlli);
  Aggiungi(testo, riga, controlli, regola.dopoLaData);
  riga.FonteNorm = giudice;
  riga.TP = regola.tp != nullptr ? QLatin1String(regola.tp) : CodiceSpeciale(giudice);
  riga.Testo = SpaziSingoli(testo);
  return EsitoFonte::Composta;
}

}  // namespace torvi
