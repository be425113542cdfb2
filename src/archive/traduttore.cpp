#include "archive/traduttore.h"

#include <QStringList>
#include <algorithm>
#include <array>

#include "archive/errore.h"
#include "archive/sintassi.h"

namespace torvi {
namespace {

QString InQuadre(const QString& nome) { return QStringLiteral("[%1]").arg(nome); }

QString Letterale(QString testo) {
  return QStringLiteral("'%1'").arg(testo.replace(QLatin1String("'"), QLatin1String("''")));
}

struct Voce {
  QLatin1String dialetto;
  QLatin1String motore;
};
constexpr std::array kParole = {
    Voce{QLatin1String("and"), QLatin1String("AND")},
    Voce{QLatin1String("or"), QLatin1String("OR")},
    Voce{QLatin1String("not"), QLatin1String("NOT")},
    Voce{QLatin1String("like"), QLatin1String("LIKE")},
    Voce{QLatin1String("is"), QLatin1String("IS")},
    Voce{QLatin1String("in"), QLatin1String("IN")},
    Voce{QLatin1String("between"), QLatin1String("BETWEEN")},
    Voce{QLatin1String("null"), QLatin1String("NULL")},
    Voce{QLatin1String("true"), QLatin1String("1")},
    Voce{QLatin1String("false"), QLatin1String("0")},
};
constexpr std::array kAggregati = {QLatin1String("count"), QLatin1String("sum"),
                                   QLatin1String("min"), QLatin1String("max"),
                                   QLatin1String("avg")};
constexpr std::array kFunzioniTesto = {QLatin1String("left"), QLatin1String("right")};

template <class Nomi>
bool Una(const Nomi& nomi, const Simbolo& simbolo) {
  return std::any_of(nomi.begin(), nomi.end(), [&](QLatin1String n) { return simbolo.E(n); });
}

// An expression in the engine's words. Every name goes out in [ ], since the engine would take an
// unknown one in double quotes for a text, and some of its keywords are columns here.
class Espressione {
 public:
  Espressione(Brano brano, QStringView istruzione) : brano_(brano), istruzione_(istruzione) {}

  QString Scrivi() {
    QStringList pezzi;
    while (posizione_ < brano_.size()) pezzi += Prossimo();
    return pezzi.join(QLatin1Char(' '));
  }

 private:
  [[noreturn]] void Rifiuta() const {
    throw ErroreEsecuzione(Errore::SintassiErrata, istruzione_.toString());
  }
  [[nodiscard]] bool SegueSegno(char16_t segno) const {
    return posizione_ < brano_.size() && brano_[posizione_].ESegno(segno);
  }

  QString Prossimo() {
    const Simbolo& simbolo = brano_[posizione_++];
    switch (simbolo.tipo) {
      case TipoSimbolo::Testo:
        return Letterale(simbolo.testo);
      case TipoSimbolo::Data:
        // Nothing equals Null.
        return simbolo.testo.isEmpty() ? QStringLiteral("NULL") : Letterale(simbolo.testo);
      case TipoSimbolo::Numero:
        return simbolo.testo;
      case TipoSimbolo::Segno:
        return Segno(simbolo);
      default:
        return Parola(simbolo);
    }
  }

  QString Segno(const Simbolo& simbolo) {
    if (simbolo.ESegno(u'.') || simbolo.ESegno(u'!') || simbolo.ESegno(u';')) Rifiuta();
    if (simbolo.ESegno(u'(')) testuali_.push_back(false);
    if (simbolo.ESegno(u')')) return Chiusa();
    return simbolo.testo;
  }

  // What a function gives has no comparison of its own: it is that of the columns.
  QString Chiusa() {
    if (testuali_.empty()) Rifiuta();
    const bool testuale = testuali_.back();
    testuali_.pop_back();
    return testuale ? QStringLiteral(") COLLATE ITALIANO") : QStringLiteral(")");
  }

  QString Parola(const Simbolo& simbolo) {
    for (const Voce& voce : kParole) {
      if (simbolo.E(voce.dialetto)) return voce.motore;
    }
    if (!SegueSegno(u'(')) return NomeQualificato(simbolo);
    const bool testuale = Una(kFunzioniTesto, simbolo);
    if (!testuale && !Una(kAggregati, simbolo)) Rifiuta();
    ++posizione_;
    testuali_.push_back(testuale);
    return InQuadre(simbolo.testo) + QLatin1String(" (");
  }

  QString NomeQualificato(const Simbolo& primo) {
    QString nome = InQuadre(primo.testo);
    while (SegueSegno(u'.') || SegueSegno(u'!')) {
      if (++posizione_ == brano_.size()) Rifiuta();
      const Simbolo& parte = brano_[posizione_++];
      const bool tutte = parte.ESegno(u'*');
      if (!tutte && !parte.ENome()) Rifiuta();
      nome += QLatin1Char('.') + (tutte ? QStringLiteral("*") : InQuadre(parte.testo));
    }
    return nome;
  }

  Brano brano_;
  QStringView istruzione_;
  std::size_t posizione_ = 0;
  std::vector<bool> testuali_;  // for each open bracket, whether it is that of a text function
};

class Scrittore {
 public:
  Scrittore(const Clausole& clausole, QStringView istruzione)
      : clausole_(clausole), istruzione_(istruzione) {}

  Traduzione Traduci() const {
    switch (clausole_.tipo) {
      case TipoIstruzione::Cancellazione:
        return {(QLatin1String("DELETE FROM ") + Tabelle() + Dove()).toUtf8(), false, {}};
      case TipoIstruzione::Aggiornamento:
        return {(QLatin1String("UPDATE ") + Tabelle() + QLatin1String(" SET ") + Assegnazioni() +
                 Dove())
                    .toUtf8(),
                false,
                {}};
      case TipoIstruzione::Selezione:
        break;
    }
    return Selezione();
  }

 private:
  [[nodiscard]] QString Scrivi(Brano brano) const {
    return Espressione(brano, istruzione_).Scrivi();
  }
  template <class Termini, class Funzione>
  static QString Elenca(const Termini& termini, QLatin1String fra, Funzione funzione) {
    QStringList pezzi;
    for (const auto& termine : termini) pezzi += funzione(termine);
    return pezzi.join(fra);
  }

  [[nodiscard]] Traduzione Selezione() const {
    const bool sulPosto = clausole_.tabelle.size() == 1 && !clausole_.distinte && !Aggregata() &&
                          clausole_.gruppi.empty();
    const QString corpo =
        Elenco() + QLatin1String(" FROM ") + Tabelle() + Dove() + Gruppi() + Ordine();
    if (clausole_.distinte) {
      // The limit keeps the engine from merging the two, or dropping the inner order: the first of
      // equal rows in that order is the one that stays, whatever the plan.
      const QString sql = QStringLiteral("SELECT DISTINCT * FROM (SELECT %1 LIMIT -1)").arg(corpo);
      return {sql.toUtf8(), true, {}};
    }
    if (!sulPosto) return {(QLatin1String("SELECT ") + corpo).toUtf8(), true, {}};
    const TabellaCitata& sola = clausole_.tabelle.front();
    const QString sql = QLatin1String("SELECT ") + NumeroRiga(sola) + QLatin1String(" AS ") +
                        InQuadre(QString(QLatin1Char(kPrefissoAlias))) + QLatin1String(", ") +
                        corpo;
    return {sql.toUtf8(), true, sola.nome};
  }

  [[nodiscard]] QString Elenco() const {
    return Elenca(clausole_.elenco, QLatin1String(", "), [this](const VoceElenco& voce) -> QString {
      const QString espressione = Scrivi(voce.espressione);
      if (voce.alias.isEmpty()) return espressione;
      return espressione + QLatin1String(" AS ") +
             InQuadre(QLatin1Char(kPrefissoAlias) + voce.alias);
    });
  }

  [[nodiscard]] QString Tabelle() const {
    return Elenca(clausole_.tabelle, QLatin1String(", "), [](const TabellaCitata& t) -> QString {
      if (t.citazione == t.nome) return InQuadre(t.nome);
      return InQuadre(t.nome) + QLatin1String(" AS ") + InQuadre(t.citazione);
    });
  }

  [[nodiscard]] QString Dove() const {
    if (clausole_.condizioni.empty()) return {};
    return QLatin1String(" WHERE ") + Elenca(clausole_.condizioni, QLatin1String(" AND "),
                                             [this](Brano condizione) -> QString {
                                               return QLatin1Char('(') + Scrivi(condizione) +
                                                      QLatin1Char(')');
                                             });
  }

  // The engine wants the assigned column bare.
  [[nodiscard]] QString Assegnazioni() const {
    return Elenca(clausole_.assegnazioni, QLatin1String(", "), [this](Brano termine) -> QString {
      const auto uguale = std::find_if(termine.begin(), termine.end(),
                                       [](const Simbolo& s) { return s.ESegno(u'='); });
      const auto colonna = static_cast<std::size_t>(uguale - termine.begin());
      if (uguale == termine.end() || (colonna != 1 && colonna != 3) ||
          !termine[colonna - 1].ENome()) {
        throw ErroreEsecuzione(Errore::SintassiErrata, istruzione_.toString());
      }
      return InQuadre(termine[colonna - 1].testo) + QLatin1String(" = ") +
             Scrivi(termine.subspan(colonna + 1));
    });
  }

  [[nodiscard]] bool Aggregata() const {
    return std::any_of(clausole_.elenco.begin(), clausole_.elenco.end(), [](const VoceElenco& v) {
      const Brano brano = v.espressione;
      for (std::size_t i = 1; i < brano.size(); ++i) {
        if (brano[i].ESegno(u'(') && Una(kAggregati, brano[i - 1])) return true;
      }
      return false;
    });
  }

  [[nodiscard]] QString Gruppi() const {
    if (clausole_.gruppi.empty()) return {};
    const QString gruppi =
        QLatin1String(" GROUP BY ") + Elenca(clausole_.gruppi, QLatin1String(", "),
                                             [this](Brano brano) { return Scrivi(brano); });
    if (clausole_.condizioneGruppi.empty()) return gruppi;
    return gruppi + QLatin1String(" HAVING ") + Scrivi(clausole_.condizioneGruppi);
  }

  static QString NumeroRiga(const TabellaCitata& tabella) {
    return InQuadre(tabella.citazione) + QLatin1String(".rowid");
  }

  // The tables whose row numbers tell the stored order, the decisive one first.
  [[nodiscard]] std::vector<TabellaCitata> InOrdine() const {
    std::vector<TabellaCitata> tabelle = clausole_.tabelle;
    const auto legame = std::find_if(tabelle.begin(), tabelle.end(), [](const TabellaCitata& t) {
      return t.nome.startsWith(QLatin1String("legame"), Qt::CaseInsensitive);
    });
    if (legame != tabelle.end()) std::rotate(tabelle.begin(), legame, legame + 1);
    return tabelle;
  }

  [[nodiscard]] QString Ordine() const {
    QStringList termini;
    for (const TermineOrdine& termine : clausole_.ordine) {
      termini += Scrivi(termine.espressione) +
                 (termine.discendente ? QLatin1String(" DESC") : QLatin1String());
    }
    const std::vector<TabellaCitata> tabelle = InOrdine();
    if (!clausole_.gruppi.empty()) {
      // A group stands where its first row does.
      for (const auto& t : tabelle) termini += QStringLiteral("min(%1)").arg(NumeroRiga(t));
    } else if (!Aggregata()) {
      for (const auto& tabella : tabelle) termini += NumeroRiga(tabella);
    }
    if (termini.isEmpty()) return {};
    return QLatin1String(" ORDER BY ") + termini.join(QLatin1String(", "));
  }

  const Clausole& clausole_;
  QStringView istruzione_;
};

}  // namespace

Traduzione Traduci(QStringView istruzione) {
  const std::vector<Simbolo> simboli = Analizza(istruzione);
  const Clausole clausole = Dividi(simboli, istruzione);
  return Scrittore(clausole, istruzione).Traduci();
}

}  // namespace torvi
