#include "shell/finestra_testo.h"

#include <QTextDocument>
#include <QVariant>

namespace torvi {
namespace {

constexpr const char* kTestoDato = "testoDato";

}  // namespace

void MostraTesto(QPlainTextEdit& controllo, const QString& testo) {
  controllo.setPlainText(testo);
  controllo.setProperty(kTestoDato, testo);
  controllo.document()->setModified(false);
}

QString TestoMostrato(const QPlainTextEdit& controllo) {
  const QTextDocument& documento = *controllo.document();
  if (!documento.isModified()) return controllo.property(kTestoDato).toString();
  // The plain text of the control would turn hard blanks into soft ones.
  QString testo = documento.toRawText();
  testo.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
  return testo.replace(QString(QChar(QChar::ParagraphSeparator)), QLatin1String("\r\n"));
}

}  // namespace torvi
