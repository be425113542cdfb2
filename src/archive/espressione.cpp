#include "archive/espressione.h"

#include <QStringList>
#include <algorithm>
#include <array>
#include <vector>

#include "archive/errore.h"

namespace torvi {
namespace {

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

}  // namespace

QString InQuadre(const QString& nome) { return QStringLiteral("[%1]").arg(nome); }

QString ScriviEspressione(Brano brano, QStringView istruzione) {
  return Espressione(brano, istruzione).Scrivi();
}

bool HaAggregati(Brano brano) {
  for (std::size_t i = 1; i < brano.size(); ++i) {
    if (brano[i].ESegno(u'(') && Una(kAggregati, brano[i - 1])) return true;
  }
  return false;
}

}  // namespace torvi
