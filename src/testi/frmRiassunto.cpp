#include "testi/frmRiassunto.h"

#include <QTextCursor>

#include "shell/finestra_misure.h"
#include "shell/finestra_testo.h"
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
  MostraTesto(*ui_->txtRiassunto, TestoIniziale);
  txtRiassunto_Change();
  AdattaAlloSchermo(*this);
  connect(ui_->txtRiassunto, &QPlainTextEdit::textChanged, this,
          &frmRiassunto::txtRiassunto_Change);
  connect(ui_->cmdUndo, &QPushButton::clicked, this, &frmRiassunto::cmdUndo_Click);
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &frmRiassunto::cmdEsci_Click);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &frmRiassunto::reject);
}

frmRiassunto::~frmRiassunto() = default;

void frmRiassunto::MettiTesto(const QString& testo) {
  QTextCursor cursore(ui_->txtRiassunto->document());
  cursore.select(QTextCursor::Document);
  cursore.insertText(testo);
}

void frmRiassunto::txtRiassunto_Change() {
  ui_->lblConteggio->setText(QString::number(TestoMostrato(*ui_->txtRiassunto).length()));
}

void frmRiassunto::cmdUndo_Click() {
  MettiTesto(TestoIniziale);
  dialoghi_.Messaggio(QStringLiteral("Ripristinato testo originale!"), {}, Icona::Informazione);
}

void frmRiassunto::cmdEsci_Click() {
  SalvaRiassunto(stato_, tipo_, TestoMostrato(*ui_->txtRiassunto));
  accept();
}

}  // namespace torvi
