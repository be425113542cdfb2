#include "testi/dizionario_personale.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "archive/errore.h"
#include "shell/percorsi.h"
#include "testi/dizionario.h"

namespace torvi {
namespace {

ErroreEsecuzione ErroreFile(const QString& frase, const QFileDevice& file) {
  return ErroreEsecuzione::ConDescrizione(
      Errore::ErroreAccessoFile,
      frase.arg(QDir::toNativeSeparators(file.fileName()), file.errorString()));
}

}  // namespace

DizionarioPersonale::DizionarioPersonale(const QString& cartellaApplicazione, Lingua lingua)
    : percorso_(TrovaPercorso(cartellaApplicazione + QLatin1String("/dizionari/personale-") +
                              NomeLingua(lingua) + QLatin1String(".txt"))) {
  QString testo = QString::fromUtf8(Leggi());
  if (testo.startsWith(QChar::ByteOrderMark)) testo.remove(0, 1);
  for (const QString& riga : testo.split(u'\n')) {
    if (const QString parola = riga.trimmed(); !parola.isEmpty()) {
      parole_ += parola.normalized(QString::NormalizationForm_C);
    }
  }
}

QByteArray DizionarioPersonale::Leggi() const {
  QFile file(percorso_);
  if (!file.exists()) return {};
  if (file.open(QIODevice::ReadOnly)) {
    QByteArray byte = file.readAll();
    if (file.error() == QFile::NoError) return byte;
  }
  throw ErroreFile(QStringLiteral("Il dizionario personale «%1» non si può leggere: %2"), file);
}

void DizionarioPersonale::Aggiungi(const QString& parola) {
  if (Contiene(parola)) return;
  // Read again: the file may have been edited since, and keeps what it holds.
  QByteArray byte = Leggi();
  if (!byte.isEmpty() && !byte.endsWith('\n')) byte += '\n';
  byte += parola.toUtf8() + '\n';
  QDir().mkpath(QFileInfo(percorso_).path());
  QSaveFile file(percorso_);
  if (!file.open(QIODevice::WriteOnly) || file.write(byte) != byte.size() || !file.commit()) {
    throw ErroreFile(QStringLiteral("La parola «%1» non è stata aggiunta: il dizionario personale "
                                    "«%2» non si può scrivere (%3).")
                         .arg(parola, QStringLiteral("%1"), QStringLiteral("%2")),
                     file);
  }
  parole_ += parola;
}

}  // namespace torvi
