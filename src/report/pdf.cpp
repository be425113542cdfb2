#include "report/pdf.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include "archive/errore.h"
#include "archive/file_nuovo.h"
#include "shell/percorsi.h"

namespace torvi {
namespace {

using namespace Qt::Literals::StringLiterals;

bool ConFormato(const QFileInfo& stampa) {
  static const QStringList formati = {u"rtf"_s, u"htm"_s, u"html"_s};
  return formati.contains(stampa.suffix(), Qt::CaseInsensitive);
}

// The two forms of the prospetto differ by their endings alone.
QString NomePdf(const QFileInfo& stampa) {
  const bool rtf = stampa.suffix().compare("rtf"_L1, Qt::CaseInsensitive) == 0;
  return (rtf ? stampa.completeBaseName() : stampa.fileName()) + ".pdf"_L1;
}

// A profile of its own: a LibreOffice that is open would take the work over, and drop it.
QStringList Argomenti(const QFileInfo& stampa, const QString& cartella) {
  QStringList argomenti = {
      "-env:UserInstallation="_L1 + QUrl::fromLocalFile(cartella + "/profilo"_L1).toString(),
      u"--headless"_s};
  if (!ConFormato(stampa)) argomenti += u"--infilter=Text (encoded):MS_1252,CRLF"_s;
  return argomenti + QStringList{u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, cartella,
                                 stampa.absoluteFilePath()};
}

}  // namespace

QString ProgrammaPdf() {
  for (const QString& nome : {u"soffice"_s, u"libreoffice"_s}) {
    QString programma = QStandardPaths::findExecutable(nome);
    if (!programma.isEmpty()) return programma;
  }
  throw ErroreEsecuzione::ConDescrizione(
      Errore::FileNonTrovato,
      QStringLiteral("LibreOffice non è installato: le stampe non si possono avere in PDF"));
}

QString ConvertiInPdf(const QString& programma, const QString& stampa) {
  const QFileInfo origine(stampa);
  const QTemporaryDir cartella;
  QProcess processo;
  processo.setStandardOutputFile(QProcess::nullDevice());
  processo.setStandardErrorFile(QProcess::nullDevice());
  processo.start(programma, Argomenti(origine, cartella.path()));
  processo.waitForFinished(-1);
  QString pdf = origine.absoluteDir().filePath(NomePdf(origine));
  const QString scritto = cartella.filePath(origine.completeBaseName() + ".pdf"_L1);
  if (!QFile::exists(scritto)) {
    QFile::remove(pdf);  // of another print
    throw ErroreEsecuzione::ConDescrizione(Errore::ErroreInterno,
                                           QStringLiteral("LibreOffice non ha scritto ") + pdf);
  }
  FileNuovo nuovo(PostoVero(pdf));
  nuovo.Copia(scritto);
  nuovo.Sostituisci();
  return pdf;
}

}  // namespace torvi
