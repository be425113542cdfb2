#include "shell/finestra_testo.h"

#include <QRegularExpression>
#include <QTextDocument>
#include <QVariant>

namespace torvi {
namespace {

constexpr const char* kTestoDato = "testoDato";
constexpr const char* kSiMostra = "siMostra";

}  // namespace

void MostraTesto(QPlainTextEdit& controllo, const QString& testo) {
  controllo.setProperty(kSiMostra, true);
  controllo.setPlainText(testo);
  controllo.setProperty(kSiMostra, false);
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

void TieneInUnaRiga(QPlainTextEdit& controllo) {
  QObject::connect(&controllo, &QPlainTextEdit::textChanged, &controllo, [&controllo] {
    if (controllo.property(kSiMostra).toBool()) return;
    const QTextDocument& documento = *controllo.document();
    QTextCursor cursore = controllo.textCursor();
    // The last sign ends the document and is nobody's text.
    for (int posto = 0; posto + 1 < documento.characterCount(); ++posto) {
      const QChar segno = documento.characterAt(posto);
      if (segno != QChar::ParagraphSeparator && segno != QChar::LineSeparator) continue;
      cursore.joinPreviousEditBlock();
      cursore.setPosition(posto);
      cursore.deleteChar();
      cursore.insertText(QStringLiteral(" "));
      cursore.endEditBlock();
    }
  });
}

void TieneInUnaRiga(QLineEdit& campo) {
  QObject::connect(&campo, &QLineEdit::textEdited, &campo, [&campo](const QString& testo) {
    static const QRegularExpression fineRiga(QStringLiteral("\\r\\n|[\\r\\n\u2028\u2029]"));
    if (!testo.contains(fineRiga)) return;
    campo.setText(QString(testo).replace(fineRiga, QStringLiteral(" ")));
  });
}

}  // namespace torvi
