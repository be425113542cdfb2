#include "archive/csv.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

namespace torvi {
namespace {

constexpr QChar kVirgola = u',';
constexpr QChar kVirgolette = u'"';
constexpr QChar kFineRiga = u'\n';

}  // namespace

LettoreCsv::LettoreCsv(const QString& percorso) : nome_(QFileInfo(percorso).fileName()) {
  QFile file(percorso);
  if (!file.open(QIODevice::ReadOnly)) throw ErroreEsecuzione(Errore::FileNonTrovato, percorso);
  QStringDecoder decodifica(QStringDecoder::Utf8);
  testo_ = decodifica(file.readAll());
  if (decodifica.hasError()) throw Guasto(QStringLiteral("testo non in UTF-8"));
  testo_.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  QList<Campo> nomi;
  if (!LeggiRiga(nomi)) throw Guasto(QStringLiteral("manca la riga dei nomi"));
  for (const Campo& nome : nomi) colonne_ += nome.TestoOVuoto();
}

bool LettoreCsv::Leggi(QList<Campo>& celle) {
  if (!LeggiRiga(celle)) return false;
  if (celle.size() != colonne_.size()) {
    throw Guasto(QStringLiteral("%1 celle invece di %2").arg(celle.size()).arg(colonne_.size()));
  }
  return true;
}

ErroreEsecuzione LettoreCsv::Guasto(const QString& motivo, Errore numero) const {
  return ErroreEsecuzione(
      numero, QStringLiteral("%1, riga %2: %3").arg(nome_, QString::number(lineaRiga_), motivo));
}

bool LettoreCsv::LeggiRiga(QList<Campo>& celle) {
  celle.clear();
  if (posto_ >= testo_.size()) return false;
  lineaRiga_ = linea_;
  celle += LeggiCella();
  while (posto_ < testo_.size() && testo_[posto_] == kVirgola) {
    ++posto_;
    celle += LeggiCella();
  }
  SaltaFineRiga();
  return true;
}

Campo LettoreCsv::LeggiCella() {
  if (posto_ < testo_.size() && testo_[posto_] == kVirgolette) return LeggiTraVirgolette();
  const qsizetype inizio = posto_;
  while (!AllaFineDellaCella()) {
    if (testo_[posto_] == kVirgolette) throw Guasto(QStringLiteral("virgolette fuori posto"));
    ++posto_;
  }
  return posto_ == inizio ? Campo() : Campo(testo_.mid(inizio, posto_ - inizio));
}

Campo LettoreCsv::LeggiTraVirgolette() {
  QString valore = QStringLiteral("");
  for (++posto_; posto_ < testo_.size(); ++posto_) {
    const QChar carattere = testo_[posto_];
    if (carattere == kVirgolette) {
      ++posto_;
      if (AllaFineDellaCella()) return valore;
      if (testo_[posto_] != kVirgolette) throw Guasto(QStringLiteral("virgolette fuori posto"));
    }
    if (carattere == kFineRiga) ++linea_;
    valore += carattere;
  }
  throw Guasto(QStringLiteral("virgolette non chiuse"));
}

bool LettoreCsv::AllaFineDellaCella() const {
  return posto_ >= testo_.size() || testo_[posto_] == kVirgola || testo_[posto_] == kFineRiga;
}

void LettoreCsv::SaltaFineRiga() {
  if (posto_ >= testo_.size()) return;
  ++posto_;
  ++linea_;
}

}  // namespace torvi
