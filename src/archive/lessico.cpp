#include "archive/lessico.h"

#include <QDate>

#include "archive/errore.h"

namespace torvi {
namespace {

bool DiParola(QChar carattere) {
  return carattere.isLetterOrNumber() || carattere == QLatin1Char('_');
}

// Month first. A day that does not exist gives no text.
QString DataDaLetterale(QStringView letterale) {
  const QList<QStringView> parti = letterale.split(QLatin1Char('/'));
  constexpr int kCifreAnno = 4;
  if (parti.size() != 3 || parti[2].trimmed().size() != kCifreAnno) return {};
  const QDate data(parti[2].toInt(), parti[0].toInt(), parti[1].toInt());
  return data.isValid() ? data.toString(QStringLiteral("dd/MM/yyyy")) : QString();
}

class Lessico {
 public:
  explicit Lessico(QStringView istruzione) : istruzione_(istruzione) {}

  std::vector<Simbolo> Tutti() {
    std::vector<Simbolo> simboli;
    while (true) {
      while (!Finito() && Qui().isSpace()) ++posizione_;
      if (Finito()) return simboli;
      simboli.push_back(Prossimo());
    }
  }

 private:
  [[nodiscard]] bool Finito() const { return posizione_ >= istruzione_.size(); }
  [[nodiscard]] QChar Qui() const { return istruzione_[posizione_]; }
  [[noreturn]] void Rifiuta() const {
    throw ErroreEsecuzione(Errore::SintassiErrata, istruzione_.toString());
  }

  Simbolo Prossimo() {
    switch (const QChar carattere = Qui(); carattere.unicode()) {
      case u'"':
      case u'\'':
        return {TipoSimbolo::Testo, Letterale(carattere)};
      case u'[':
        return {TipoSimbolo::Nome, NomeInQuadre()};
      case u'#':
        return {TipoSimbolo::Data, DataDaLetterale(FinoA(QLatin1Char('#')))};
      default:
        if (carattere.isDigit()) return {TipoSimbolo::Numero, Numero()};
        if (DiParola(carattere)) return {TipoSimbolo::Parola, Finche(DiParola)};
        return {TipoSimbolo::Segno, Segno()};
    }
  }

  // What stands between the sign here and the next one like `fine`, which is taken too.
  QStringView FinoA(QChar fine) {
    const qsizetype inizio = posizione_ + 1;
    const qsizetype ultimo = istruzione_.indexOf(fine, inizio);
    if (ultimo < 0) Rifiuta();
    posizione_ = ultimo + 1;
    return istruzione_.sliced(inizio, ultimo - inizio);
  }

  // The quote is doubled inside.
  QString Letterale(QChar apice) {
    QString testo = FinoA(apice).toString();
    while (!Finito() && Qui() == apice) {
      testo += apice;
      testo += FinoA(apice);
    }
    if (testo.contains(QChar::Null)) Rifiuta();
    return testo;
  }

  QString NomeInQuadre() {
    const QStringView nome = FinoA(QLatin1Char(']')).trimmed();
    if (nome.isEmpty() || nome.contains(QLatin1Char('[')) || nome.contains(QChar::Null)) Rifiuta();
    return nome.toString();
  }

  QString Numero() {
    const auto cifra = [](QChar carattere) { return carattere.isDigit(); };
    QString numero = Finche(cifra);
    const bool decimali = istruzione_.size() > posizione_ + 1 && Qui() == QLatin1Char('.') &&
                          istruzione_[posizione_ + 1].isDigit();
    if (!decimali) return numero;
    ++posizione_;
    numero += QLatin1Char('.') + Finche(cifra);
    return numero;
  }

  template <class Predicato>
  QString Finche(Predicato predicato) {
    const qsizetype inizio = posizione_;
    while (!Finito() && predicato(Qui())) ++posizione_;
    return istruzione_.sliced(inizio, posizione_ - inizio).toString();
  }

  QString Segno() {
    static constexpr QLatin1String kDoppi[] = {QLatin1String("<>"), QLatin1String("<="),
                                               QLatin1String(">=")};
    static constexpr QLatin1String kSemplici("()*,.!=<>+-/?;");
    for (const QLatin1String doppio : kDoppi) {
      if (!istruzione_.sliced(posizione_).startsWith(doppio)) continue;
      posizione_ += doppio.size();
      return doppio;
    }
    const QChar segno = Qui();
    if (!kSemplici.contains(segno)) Rifiuta();
    ++posizione_;
    return segno;
  }

  QStringView istruzione_;
  qsizetype posizione_ = 0;
};

}  // namespace

bool Simbolo::E(QLatin1String parola) const {
  return tipo == TipoSimbolo::Parola && testo.compare(parola, Qt::CaseInsensitive) == 0;
}

bool Simbolo::ESegno(char16_t segno) const {
  return tipo == TipoSimbolo::Segno && testo.size() == 1 && testo.front() == segno;
}

bool Simbolo::ENome() const { return tipo == TipoSimbolo::Parola || tipo == TipoSimbolo::Nome; }

std::vector<Simbolo> Analizza(QStringView istruzione) { return Lessico(istruzione).Tutti(); }

}  // namespace torvi
