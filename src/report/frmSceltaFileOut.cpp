#include "report/frmSceltaFileOut.h"

#include "shell/finestra_frecce.h"
#include "shell/finestra_misure.h"
#include "shell/percorsi.h"
#include "ui_frmSceltaFileOut.h"

namespace torvi {

frmSceltaFileOut::frmSceltaFileOut(Dialoghi& dialoghi, const QString& cartella,
                                   const QString& modello, bool conNuovo, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmSceltaFileOut>()),
      dialoghi_(dialoghi),
      cartella_(TrovaPercorso(cartella)) {
  ui_->setupUi(this);
  ui_->fileListOut->addItems(ElencoFile(cartella_, modello));
  ui_->cmdNuovo->setVisible(conNuovo);
  new PrimaFreccia(*ui_->fileListOut);
  AdattaAlloSchermo(*this);
  connect(ui_->fileListOut, &QListWidget::itemSelectionChanged, this,
          &frmSceltaFileOut::fileListOut_Click);
  connect(ui_->cmdConferma, &QPushButton::clicked, this, &frmSceltaFileOut::cmdConferma_Click);
  connect(ui_->cmdNuovo, &QPushButton::clicked, this, &frmSceltaFileOut::cmdNuovo_Click);
  connect(ui_->cmdAnnulla, &QPushButton::clicked, this, &frmSceltaFileOut::cmdAnnulla_Click);
}

frmSceltaFileOut::~frmSceltaFileOut() = default;

void frmSceltaFileOut::fileListOut_Click() {
  const QList<QListWidgetItem*> scelti = ui_->fileListOut->selectedItems();
  if (!scelti.isEmpty()) FileBatch = cartella_ + QLatin1Char('/') + scelti.first()->text();
}

void frmSceltaFileOut::cmdConferma_Click() {
  if (!FileBatch.isEmpty()) {
    accept();
    return;
  }
  dialoghi_.Messaggio(QStringLiteral(
      "Non è stato selezionato alcun file fra gli esistenti né il nome di uno nuovo!"));
}

// No separator between folder and text: the operator types it.
void frmSceltaFileOut::cmdNuovo_Click() {
  QString nome = dialoghi_.Immissione(QStringLiteral("Inserisci nuovo nome file:"),
                                      QStringLiteral("Nome file nuovo"));
  nome.replace(QLatin1Char('\\'), QLatin1Char('/'));
  ui_->fileListOut->clearSelection();
  FileBatch = cartella_ + nome;
}

void frmSceltaFileOut::cmdAnnulla_Click() { reject(); }

}  // namespace torvi
