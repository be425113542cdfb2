#include "archive/traduttore.h"

#include <QStringList>
#include <algorithm>

#include "archive/errore.h"
#include "archive/espressione.h"
#include "archive/sintassi.h"

namespace torvi {
namespace {

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
  [[nodiscard]] QString Scrivi(Brano brano) const { return ScriviEspressione(brano, istruzione_); }
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
      QString espressione = Scrivi(voce.espressione);
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
    return std::any_of(clausole_.elenco.begin(), clausole_.elenco.end(),
                       [](const VoceElenco& voce) { return HaAggregati(voce.espressione); });
  }

  [[nodiscard]] QString Gruppi() const {
    if (clausole_.gruppi.empty()) return {};
    QString gruppi =
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
  Traduzione traduzione = Scrittore(clausole, istruzione).Traduci();
  for (const TabellaCitata& tabella : clausole.tabelle) traduzione.tabelle += tabella.nome;
  return traduzione;
}

}  // namespace torvi
