#include "shell/valori.h"

#include <QStringList>
#include <QVarLengthArray>
#include <charconv>

namespace torvi {
namespace {

const QStringList& Mesi() {
  static const QStringList mesi = {
      QStringLiteral("gennaio"), QStringLiteral("febbraio"), QStringLiteral("marzo"),
      QStringLiteral("aprile"),  QStringLiteral("maggio"),   QStringLiteral("giugno"),
      QStringLiteral("luglio"),  QStringLiteral("agosto"),   QStringLiteral("settembre"),
      QStringLiteral("ottobre"), QStringLiteral("novembre"), QStringLiteral("dicembre")};
  return mesi;
}

}  // namespace

double Val(QStringView testo) {
  QVarLengthArray<char, 32> cifre;
  bool punto = false;
  bool segno = true;  // only in front
  bool negativo = false;
  for (const QChar c : testo) {
    if (c.isSpace()) continue;
    const bool separatore = c == u'.' && !punto;
    if (segno && (c == u'-' || c == u'+')) {
      negativo = c == u'-';
    } else if (separatore || (c >= u'0' && c <= u'9')) {
      cifre.append(c.toLatin1());
    } else {
      break;
    }
    punto = punto || separatore;
    segno = false;
  }
  double valore = 0;
  std::from_chars(cifre.cbegin(), cifre.cend(), valore);
  return negativo ? -valore : valore;
}

QString RiempiZeri(const QString& testo, int larghezza) {
  return testo.rightJustified(larghezza, QLatin1Char('0'));
}

QString Trim(const QString& testo) {
  qsizetype inizio = 0;
  qsizetype fine = testo.size();
  while (inizio < fine && testo[inizio] == QLatin1Char(' ')) ++inizio;
  while (fine > inizio && testo[fine - 1] == QLatin1Char(' ')) --fine;
  return testo.sliced(inizio, fine - inizio);
}

QString NomeMese(QString& mese) {
  if (mese.startsWith(QLatin1Char('0'))) mese.remove(0, 1);
  for (int numero = 1; numero <= Mesi().size(); ++numero) {
    if (mese == QString::number(numero)) return Mesi().at(numero - 1);
  }
  return {};
}

QString NumeroMese(const QString& nome) { return QString::number(Mesi().indexOf(nome) + 1); }

}  // namespace torvi
