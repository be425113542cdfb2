#include "testi/frmRiassunto.h"

#include <QTextCursor>
#include <QTextDocument>

#include "shell/finestra_misure.h"
#include "ui_frmRiassunto.h"

namespace torvi {

frmRiassunto::frmRiassunto(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
                           QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmRiassunto>()),
      stato_(stato),
      dialoghi_(dialoghi),
      dizionari_(dizionari),
      tipo_(TrovaTipoRiassunto(stato.TipoTestoRiassunto)),
      TestoIniziale(stato.*tipo_.testo) {
  ui_->setupUi(this);
  setWindowTitle(QLatin1String(tipo_.titolo));
  ui_->Label1->setText(QLatin1String(tipo_.etichetta));
  ui_->txtRiassunto->setPlainText(TestoIniziale);
  txtRiassunto_Change();
  AdattaAlloSchermo(*this);
  connect(ui_->txtRiassunto, &QPlainTextEdit::textChanged, this,
          &frmRiassunto::txtRiassunto_Change);
  connect(ui_->cmdUndo, &QPushButton::clicked, this, &frmRiassunto::cmdUndo_Click);
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &frmRiassunto::cmdEsci_Click);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &frmRiassunto::reject);
}

frmRiassunto::~frmRiassunto() = default;

QString frmRiassunto::Testo() const {
  // The plain text of the control would turn hard blanks into soft ones.
  QString testo = ui_->txtRiassunto->document()->toRawText();
  testo.replace(QChar::LineSeparator, QChar::ParagraphSeparator);
  return testo.replace(QString(QChar(QChar::ParagraphSeparator)), QLatin1String("\r\n"));
}

void frmRiassunto::MettiTesto(const QString& testo) {
  QTextCursor cursore(ui_->txtRiassunto->document());
  cursore.select(QTextCursor::Document);
  cursore.insertText(testo);
}

void frmRiassunto::txtRiassunto_Change() {
  ui_->lblConteggio->setText(QString::number(Testo().length()));
}

void frmRiassunto::cmdUndo_Click() {
  MettiTesto(TestoIniziale);
  dialoghi_.Messaggio(QStringLiteral("Ripristinato testo originale!"), {}, Icona::Informazione);
}

void frmRiassunto::cmdEsci_Click() {
  SalvaRiassunto(stato_, tipo_, Testo());
  accept();
}

}  // namespace torvi
