#include "report/rtf.h"

#include "export/file_testo.h"

namespace torvi::rtf {

using namespace Qt::Literals::StringLiterals;

QString Corpo(int mezziPunti) {
  return QStringLiteral(
             "\\pard\\plain \\qj\\nowidctlpar\\widctlpar\\tqr\\tx8505\\adjustright "
             "\\fs%1\\lang1040\\cgrid ")
      .arg(mezziPunti);
}

QString Valore(QString valore) {
  for (const QLatin1Char segno : {QLatin1Char('\\'), QLatin1Char('{'), QLatin1Char('}')}) {
    if (valore.contains(segno)) valore.replace(segno, QLatin1Char('\\') + QString(segno));
  }
  return valore;
}

QString LeggiTestata(const StatoGlobale& stato, const QString& nome) {
  FileTesto file(stato.CartellaApplicazione + QLatin1Char('/') + nome, Apertura::Lettura);
  QString testata;
  while (const auto riga = file.LineInput()) testata += *riga;
  return testata.replace("Consegna xxx"_L1, QString("Consegna "_L1 + Valore(stato.SiglaConsegna)),
                         Qt::CaseInsensitive);
}

}  // namespace torvi::rtf
