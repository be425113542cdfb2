#include "shell/finestra_testo.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextDocument>
#include <QVariant>

namespace torvi {
namespace {

constexpr const char* kTestoDato = "testoDato";

QString InUnaRiga(QString testo) {
  static const QRegularExpression fineRiga(QStringLiteral("\\r\\n|[\\r\\n\u2028\u2029]"));
  return testo.replace(fineRiga, QStringLiteral(" "));
}

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

bool LasciaTesto(const QPlainTextEdit& controllo, Dialoghi& dialoghi) {
  return !controllo.document()->isModified() ||
         dialoghi.Domanda(QStringLiteral("Confermi l'uscita ?"), {}, Pulsanti::OkAnnulla) ==
             Risposta::Ok;
}

void TieneInUnaRiga(QLineEdit& campo) {
  QObject::connect(&campo, &QLineEdit::textEdited, &campo, [&campo](const QString& testo) {
    const QString una = InUnaRiga(testo);
    if (una != testo) campo.setText(una);
  });
}

void TestoDiUnaRiga::insertFromMimeData(const QMimeData* dati) {
  if (dati->hasText()) insertPlainText(InUnaRiga(dati->text()));
  ensureCursorVisible();
}

void TestoDiUnaRiga::keyPressEvent(QKeyEvent* evento) {
  if (evento->matches(QKeySequence::InsertParagraphSeparator) ||
      evento->matches(QKeySequence::InsertLineSeparator)) {
    insertPlainText(QStringLiteral(" "));
  } else {
    QPlainTextEdit::keyPressEvent(evento);
  }
}

}  // namespace torvi
