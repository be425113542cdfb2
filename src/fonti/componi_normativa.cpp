#include "archive/errore.h"
#include "fonti/componi_interna.h"
#include "shell/valori.h"

namespace torvi {
namespace {

using C = ControlliFonte;
using R = RigaFonte;

// Whose act it is.
struct Autore {
  Pezzo pezzo;
  const char16_t* mancanza;
  const char16_t* titolo;
  bool domanda = false;  // the operator may confirm that it is missing
};
constexpr Autore kProvincia = {
    {u" ", &C::txtInfo1, &R::Provincia, u"", 2}, u"Manca la provincia!", u""};
constexpr Autore kRegioneAutore = {
    {u" ", &C::ComboRegione, &R::Regione, u"", 2}, u"Manca la regione!", u""};
constexpr Autore kMinistero = {
    {u" ", &C::txtInfo1, &R::Ministero}, u"Manca il ministero: giusto?", u"Attenzione!", true};
constexpr Autore kAmministrazione = {
    {u" ", &C::txtInfo1, &R::Amministrazione}, u"Manca l'amministrazione!", u"Attenzione!"};
constexpr Autore kAutorita = {
    {u" ", &C::txtInfo1, &R::Autorita}, u"Manca l'autorità!", u"Attenzione!"};

struct Regola {
  const char16_t* voce;
  const char* tp;
  const char16_t* atto;  // null: the one selected in the list
  const Autore* autore;
  bool estremi;
};
constexpr Regola kRegole[] = {
    {u"Legge costituzionale", "LICO", u"l. cost.", nullptr, true},
    {u"Atti statali aventi forza di legge", "LIO", nullptr, nullptr, true},
    {u"Leggi e statuti provinciali", "LIP", nullptr, &kProvincia, true},
    {u"Leggi e statuti regionali", "LIR", nullptr, &kRegioneAutore, true},
    {u"Regolamento della Camera", "LIOA", u"reg. cam.", nullptr, false},
    {u"Regolamento del Senato", "LIOA", u"reg. sen.", nullptr, false},
    {u"Atti governativi e ministeriali", "LIOA", nullptr, &kMinistero, true},
    {u"Atti di altre amministrazioni statali e locali", "LIOA", nullptr, &kAmministrazione, true},
    {u"Atti delle autorità amministrative indipendenti", "LIOA", nullptr, &kAutorita, true},
    {u"Contratti collettivi", "AC", nullptr, nullptr, true},
};

// Acts of local bodies are a region's or a province's by their name.
constexpr char16_t kEntiLocali[] = u"Regolamenti ed altri atti degli enti locali";
constexpr Regola kDiRegione = {kEntiLocali, "LIR", nullptr, &kRegioneAutore, true};
constexpr Regola kDiProvincia = {kEntiLocali, "LIP", nullptr, &kProvincia, true};

constexpr Pezzo kSpecifica[] = {{u" (", &C::txtInfo3, &R::Altro, u")"}};
constexpr Pezzo kAllegatoCodice[] = {{u" all. ", &C::txtAll, &R::Allegato}};
constexpr Pezzo kAllegato[] = {{u", all. ", &C::txtAll, &R::Allegato}};

const Regola& TrovaRegola(const ControlliFonte& controlli) {
  if (controlli.ComboFonte == QStringView(kEntiLocali)) {
    const bool regione = controlli.lstFonte.value_or(QString()).endsWith(QLatin1String("r."));
    return regione ? kDiRegione : kDiProvincia;
  }
  for (const Regola& regola : kRegole) {
    if (controlli.ComboFonte == QStringView(regola.voce)) return regola;
  }
  throw ErroreEsecuzione(Errore::ChiamataNonValida, controlli.ComboFonte);
}

bool Confermata(Dialoghi& dialoghi, const QString& domanda) {
  return dialoghi.Domanda(domanda, QStringLiteral("Attenzione!"), Pulsanti::SiNoAnnulla) ==
         Risposta::Si;
}

// Whether the citation can go on.
bool AutoreNoto(const ControlliFonte& controlli, const Autore& autore, Dialoghi& dialoghi) {
  if (Riempito(controlli, autore.pezzo.controllo)) return true;
  const QString mancanza = QString::fromUtf16(autore.mancanza);
  if (autore.domanda) return Confermata(dialoghi, mancanza);
  dialoghi.Messaggio(mancanza, QString::fromUtf16(autore.titolo));
  return false;
}

bool AggiungiSpecifica(QString& testo, RigaFonte& riga, const ControlliFonte& controlli,
                       Dialoghi& dialoghi) {
  if (!Riempito(controlli, &C::txtInfo3)) {
    return Confermata(dialoghi, QStringLiteral("Manca l'argomento: giusto?"));
  }
  Aggiungi(testo, riga, controlli, kSpecifica);
  return true;
}

}  // namespace

void AggiungiEstremi(QString& testo, RigaFonte& riga, const ControlliFonte& controlli) {
  Aggiungi(testo, riga, controlli, Estremi());
}

EsitoFonte ComponiCodificazione(const ControlliFonte& controlli, RigaFonte& riga) {
  const bool bancarie = controlli.indice == 1 &&
                        controlli.ComboFonte.compare(QLatin1String("Norme bancarie uniformi"),
                                                     Qt::CaseInsensitive) == 0;
  QString testo;
  Aggiungi(testo, riga, controlli, Articolo());
  Aggiungi(testo, riga, controlli, kAllegatoCodice);
  riga.FonteNorm = controlli.ComboFonte;
  riga.TP = bancarie ? QStringLiteral("LIAB") : QStringLiteral("LIC");
  riga.Testo = SpaziSingoli(testo + QLatin1Char(' ') + controlli.ComboFonte);
  return EsitoFonte::Composta;
}

EsitoFonte ComponiNormativa(const ControlliFonte& controlli, RigaFonte& riga, Dialoghi& dialoghi) {
  const Regola& regola = TrovaRegola(controlli);
  QString testo;
  Aggiungi(testo, riga, controlli, Articolo());
  if (regola.atto == nullptr && !controlli.lstFonte) {
    dialoghi.Messaggio(QStringLiteral("Manca l'atto!"));
    return EsitoFonte::Tolta;
  }
  riga.FonteNorm = regola.atto != nullptr ? QString::fromUtf16(regola.atto) : *controlli.lstFonte;
  testo += QLatin1Char(' ') + riga.FonteNorm;
  if (regola.autore != nullptr) {
    if (!AutoreNoto(controlli, *regola.autore, dialoghi)) return EsitoFonte::Tolta;
    Aggiungi(testo, riga, controlli, {&regola.autore->pezzo, 1});
  }
  testo = Trim(testo);
  if (regola.estremi) AggiungiEstremi(testo, riga, controlli);
  riga.TP = QLatin1String(regola.tp);
  if (riga.TP == QLatin1String("AC") && !AggiungiSpecifica(testo, riga, controlli, dialoghi)) {
    return EsitoFonte::Tolta;
  }
  Aggiungi(testo, riga, controlli, kAllegato);
  riga.Testo = Trim(SpaziSingoli(testo));
  return EsitoFonte::Composta;
}

}  // namespace torvi
