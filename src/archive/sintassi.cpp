#include "archive/sintassi.h"

#include <algorithm>
#include <array>

#include "archive/errore.h"

namespace torvi {
namespace {

constexpr std::array kInizioClausola = {
    QLatin1String("from"),  QLatin1String("set"),    QLatin1String("where"),
    QLatin1String("group"), QLatin1String("having"), QLatin1String("order"),
};
constexpr std::array kInizioUnione = {QLatin1String("inner"), QLatin1String("join"),
                                      QLatin1String("left"), QLatin1String("right")};

template <class Parole>
bool Una(const Simbolo& simbolo, const Parole& parole) {
  return std::any_of(parole.begin(), parole.end(), [&](QLatin1String p) { return simbolo.E(p); });
}

class Sintassi {
 public:
  Sintassi(Brano simboli, QStringView istruzione) : resto_(simboli), istruzione_(istruzione) {}

  Clausole Istruzione() {
    if (!resto_.empty() && resto_.back().ESegno(u';')) resto_ = resto_.first(resto_.size() - 1);
    if (Prendi("select")) {
      Selezione();
    } else if (Prendi("delete")) {
      Cancellazione();
    } else if (Prendi("update")) {
      Aggiornamento();
    } else {
      Rifiuta();
    }
    if (!resto_.empty()) Rifiuta();
    return std::move(clausole_);
  }

 private:
  [[noreturn]] void Rifiuta() const {
    throw ErroreEsecuzione(Errore::SintassiErrata, istruzione_.toString());
  }

  [[nodiscard]] bool Qui(const char* parola) const {
    return !resto_.empty() && resto_.front().E(QLatin1String(parola));
  }
  [[nodiscard]] bool QuiSegno(char16_t segno) const {
    return !resto_.empty() && resto_.front().ESegno(segno);
  }
  Simbolo Avanza() {
    if (resto_.empty()) Rifiuta();
    Simbolo simbolo = resto_.front();
    resto_ = resto_.subspan(1);
    return simbolo;
  }
  bool Prendi(const char* parola) {
    if (!Qui(parola)) return false;
    Avanza();
    return true;
  }
  bool PrendiSegno(char16_t segno) {
    if (!QuiSegno(segno)) return false;
    Avanza();
    return true;
  }
  void Richiedi(const char* parola) {
    if (!Prendi(parola)) Rifiuta();
  }
  QString PrendiNome() {
    const Simbolo simbolo = Avanza();
    if (!simbolo.ENome() || Una(simbolo, kInizioClausola)) Rifiuta();
    return simbolo.testo;
  }

  // What stands before the first sign outside brackets that `fine` accepts; never nothing.
  template <class Fine>
  Brano PrendiFino(Fine fine) {
    int aperte = 0;
    std::size_t lunghezza = 0;
    for (; lunghezza < resto_.size(); ++lunghezza) {
      const Simbolo& simbolo = resto_[lunghezza];
      if (aperte == 0 && (simbolo.ESegno(u')') || fine(lunghezza))) break;
      if (simbolo.ESegno(u'(')) ++aperte;
      if (simbolo.ESegno(u')')) --aperte;
    }
    if (aperte != 0 || lunghezza == 0) Rifiuta();
    const Brano brano = resto_.first(lunghezza);
    resto_ = resto_.subspan(lunghezza);
    return brano;
  }
  Brano PrendiClausola() {
    return PrendiFino([this](std::size_t i) { return Una(resto_[i], kInizioClausola); });
  }
  std::vector<Brano> PrendiTermini() {
    std::vector<Brano> termini;
    do {
      termini.push_back(PrendiFino([this](std::size_t i) {
        return resto_[i].ESegno(u',') || Una(resto_[i], kInizioClausola);
      }));
    } while (PrendiSegno(u','));
    return termini;
  }

  void Selezione() {
    clausole_.tipo = TipoIstruzione::Selezione;
    clausole_.distinte = Prendi("distinct");
    for (const Brano voce : PrendiTermini()) clausole_.elenco.push_back(Voce(voce));
    Richiedi("from");
    Tabelle();
    Dove();
    if (Prendi("group")) {
      Richiedi("by");
      clausole_.gruppi = PrendiTermini();
      if (Prendi("having")) clausole_.condizioneGruppi = PrendiClausola();
    }
    if (!Prendi("order")) return;
    Richiedi("by");
    for (const Brano termine : PrendiTermini()) clausole_.ordine.push_back(Termine(termine));
  }

  void Cancellazione() {
    clausole_.tipo = TipoIstruzione::Cancellazione;
    // `*` and `table.*` say nothing that FROM does not.
    if (!Qui("from")) static_cast<void>(PrendiClausola());
    Richiedi("from");
    UnaTabella();
    Dove();
  }

  void Aggiornamento() {
    clausole_.tipo = TipoIstruzione::Aggiornamento;
    UnaTabella();
    Richiedi("set");
    clausole_.assegnazioni = PrendiTermini();
    Dove();
  }

  void Dove() {
    if (Prendi("where")) clausole_.condizioni.push_back(PrendiClausola());
  }

  [[nodiscard]] VoceElenco Voce(Brano voce) const {
    const auto indice = voce.size() < 3 ? 0 : voce.size() - 2;
    if (indice == 0 || !voce[indice].E(QLatin1String("as"))) return {voce, {}};
    if (!voce.back().ENome()) Rifiuta();
    return {voce.first(indice), voce.back().testo};
  }

  [[nodiscard]] TermineOrdine Termine(Brano termine) const {
    const bool discendente = termine.back().E(QLatin1String("desc"));
    const bool verso = discendente || termine.back().E(QLatin1String("asc"));
    if (verso && termine.size() == 1) Rifiuta();
    return {verso ? termine.first(termine.size() - 1) : termine, discendente};
  }

  void Tabelle() {
    do {
      Unione();
    } while (PrendiSegno(u','));
  }

  // Inner joins, with the brackets around them, are their tables and their conditions.
  void Unione() {
    Addendo();
    while (Qui("inner") || Qui("join")) {
      Prendi("inner");
      Richiedi("join");
      Addendo();
      Richiedi("on");
      clausole_.condizioni.push_back(PrendiFino([this](std::size_t i) { return FineUnione(i); }));
    }
  }
  [[nodiscard]] bool FineUnione(std::size_t i) const {
    if (resto_[i].ESegno(u',')) return true;
    const bool funzione = i + 1 < resto_.size() && resto_[i + 1].ESegno(u'(');
    return Una(resto_[i], kInizioClausola) || (!funzione && Una(resto_[i], kInizioUnione));
  }
  void Addendo() {
    if (!PrendiSegno(u'(')) return UnaTabella();
    Unione();
    if (!PrendiSegno(u')')) Rifiuta();
  }
  void UnaTabella() {
    const QString nome = PrendiNome();
    clausole_.tabelle.push_back({nome, Prendi("as") ? PrendiNome() : nome});
  }

  Brano resto_;
  QStringView istruzione_;
  Clausole clausole_;
};

}  // namespace

Clausole Dividi(Brano simboli, QStringView istruzione) {
  return Sintassi(simboli, istruzione).Istruzione();
}

}  // namespace torvi
