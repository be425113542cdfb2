#include "classificazione/frmLista.h"

#include <QKeyEvent>

#include "shell/finestra_misure.h"
#include "ui_frmLista.h"

namespace torvi {

frmLista::frmLista(const QStringList& voci, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmLista>()) {
  ui_->setupUi(this);
  ui_->lstLista->addItems(voci);
  ui_->lstLista->setCurrentRow(0);
  AdattaAlloSchermo(*this);
  connect(ui_->lstLista, &QListWidget::itemDoubleClicked, this, &frmLista::lstLista_DblClick);
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &frmLista::cmdEsci_Click);
}

frmLista::~frmLista() = default;

void frmLista::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && ui_->lstLista->hasFocus()) {
    lstLista_DblClick();
    return;
  }
  QDialog::keyPressEvent(evento);
}

void frmLista::lstLista_DblClick() {
  const QListWidgetItem* voce = ui_->lstLista->currentItem();
  if (voce == nullptr) return;
  ValoreLista = voce->text();
  accept();
}

void frmLista::cmdEsci_Click() { reject(); }

}  // namespace torvi
