#include "document/frmSceltaDoc.h"

#include <algorithm>

#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmSceltaDoc.h"

namespace torvi {

bool frmSceltaDoc::ChiediDocumento(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre) {
  std::unique_ptr<frmSceltaDoc> forma;
  const bool caricata = CaricaScelta(stato, dialoghi, ModoScelta::Edita, [&] {
    forma = std::make_unique<frmSceltaDoc>(stato, dialoghi, ModoScelta::Edita, padre);
    return forma->Caricata();
  });
  return caricata && forma->exec() == QDialog::Accepted;
}

void frmSceltaDoc::ApriCancellazione(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre) {
  for (auto* aperta : padre->findChildren<frmSceltaDoc*>()) {
    if (!aperta->isVisible()) continue;
    aperta->raise();
    aperta->activateWindow();
    return;
  }
  std::unique_ptr<frmSceltaDoc> forma;
  const bool caricata = CaricaScelta(stato, dialoghi, ModoScelta::Cancella, [&] {
    forma = std::make_unique<frmSceltaDoc>(stato, dialoghi, ModoScelta::Cancella, padre);
    return forma->Caricata();
  });
  if (!caricata) return;
  forma->setAttribute(Qt::WA_DeleteOnClose);
  forma.release()->show();
}

frmSceltaDoc::frmSceltaDoc(StatoGlobale& stato, Dialoghi& dialoghi, ModoScelta modo, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmSceltaDoc>()),
      stato_(stato),
      dialoghi_(dialoghi) {
  ui_->setupUi(this);
  ui_->cmdEdita->setEnabled(modo == ModoScelta::Edita);
  ui_->cmdCancella->setEnabled(modo == ModoScelta::Cancella);
  AdattaAlloSchermo(*this);
  connect(ui_->lstDocumento, &QListWidget::itemClicked, this, &frmSceltaDoc::lstDocumento_Click);
  connect(ui_->lstDocumento, &QListWidget::currentRowChanged, this, &frmSceltaDoc::SegueCorrente);
  connect(ui_->lstDocumento, &QListWidget::itemSelectionChanged, this,
          &frmSceltaDoc::SegueCorrente);
  connect(ui_->lstDocumento, &QListWidget::itemDoubleClicked, ui_->cmdEdita, &QPushButton::click);
  connect(ui_->cmdEdita, &QPushButton::clicked, this,
          [this] { Esegui(dialoghi_, [this] { cmdEdita_Click(); }); });
  connect(ui_->cmdCancella, &QPushButton::clicked, this,
          [this] { Esegui(dialoghi_, [this] { cmdCancella_Click(); }); });
  connect(ui_->cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);
  RiempiScelta(stato_, dialoghi_, scelta_);
  Mostra();
  caricata_ = !scelta_.lstDocumento.isEmpty();
  if (caricata_) ui_->lstDocumento->setCurrentRow(0);
}

frmSceltaDoc::~frmSceltaDoc() = default;

void frmSceltaDoc::Mostra() {
  const QSignalBlocker muta(ui_->lstDocumento);
  ui_->lstDocumento->clear();
  ui_->lstDocumento->addItems(scelta_.lstDocumento);
}

// Keys choose as clicks do; a line that is only walked over, unselected, is no click.
void frmSceltaDoc::SegueCorrente() {
  const QListWidgetItem* corrente = ui_->lstDocumento->currentItem();
  if (corrente != nullptr && corrente->isSelected()) lstDocumento_Click();
}

void frmSceltaDoc::lstDocumento_Click() {
  CliccaScelta(stato_, scelta_, ui_->lstDocumento->currentRow());
}

void frmSceltaDoc::cmdEdita_Click() {
  if (EditaScelta(stato_, dialoghi_, scelta_)) accept();
}

void frmSceltaDoc::cmdCancella_Click() {
  QListWidget& lista = *ui_->lstDocumento;
  QStringList linee;
  for (int riga = 0; riga < lista.count(); ++riga) {
    if (lista.item(riga)->isSelected()) linee += lista.item(riga)->text();
  }
  const int corrente = lista.currentRow();
  if (!CancellaScelte(stato_, dialoghi_, scelta_, linee)) return;
  Mostra();
  // The list stays where it was, and no line is chosen.
  lista.setCurrentRow(std::min(corrente, lista.count() - 1), QItemSelectionModel::NoUpdate);
}

void frmSceltaDoc::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && ui_->lstDocumento->hasFocus()) {
    ui_->cmdEdita->click();
  } else if (!InvioAvanti(*this, *evento)) {
    QDialog::keyPressEvent(evento);
  }
}

}  // namespace torvi
