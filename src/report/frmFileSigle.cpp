#include "report/frmFileSigle.h"

#include "report/sigle.h"
#include "shell/finestra_frecce.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmFileSigle.h"

namespace torvi {

frmFileSigle::frmFileSigle(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmFileSigle>()),
      stato_(stato),
      dialoghi_(dialoghi),
      fileBatchPrima_(stato.FileBatch) {
  ui_->setupUi(this);
  for (QWidget* controllo :
       {static_cast<QWidget*>(ui_->frmOperazioniSigle), static_cast<QWidget*>(ui_->Label1),
        static_cast<QWidget*>(ui_->Label2)}) {
    controllo->hide();
  }
  new PrimaFreccia(*ui_->lstSigle);
  AdattaAlloSchermo(*this);
  const auto collega = [this](QPushButton* pulsante, void (frmFileSigle::*gestore)()) {
    connect(pulsante, &QPushButton::clicked, this,
            [this, gestore] { Esegui(dialoghi_, [this, gestore] { (this->*gestore)(); }); });
  };
  collega(ui_->cmdApriFileSigle, &frmFileSigle::cmdApriFileSigle_Click);
  collega(ui_->cmdNuovaSigla, &frmFileSigle::cmdNuovaSigla_Click);
  collega(ui_->cmdEliminaSigla, &frmFileSigle::cmdEliminaSigla_Click);
  collega(ui_->cmdEsciSalva, &frmFileSigle::cmdEsciSalva_Click);
  collega(ui_->cmdAnnulla, &frmFileSigle::cmdAnnulla_Click);
}

frmFileSigle::~frmFileSigle() = default;

void frmFileSigle::cmdApriFileSigle_Click() {
  // What is no longer on screen must not be written over.
  ui_->lstSigle->clear();
  fileSigle_.clear();
  const bool nuovo = ui_->chkNuovoFile->isChecked();
  if (!ScegliFileSigle(stato_, dialoghi_, nuovo)) return;
  if (!nuovo) ui_->lstSigle->addItems(LeggiSigle(stato_.FileBatch));
  fileSigle_ = stato_.FileBatch;
  ui_->Label2->setText(QString::number(ui_->lstSigle->count()));
  ui_->Label1->show();
  ui_->Label2->show();
  ui_->frmOperazioniSigle->show();
}

void frmFileSigle::cmdNuovaSigla_Click() {
  const QString sigla =
      dialoghi_.Immissione(QStringLiteral("Inserisci sigla:"), QStringLiteral("Nuova sigla"));
  // A blank code stands for no archive: it is what a cancelled question leaves.
  if (!sigla.isEmpty()) ui_->lstSigle->addItem(sigla);
}

void frmFileSigle::cmdEliminaSigla_Click() {
  qDeleteAll(ui_->lstSigle->selectedItems());
  // The next one is not to go by a second press.
  ui_->lstSigle->clearSelection();
}

void frmFileSigle::cmdEsciSalva_Click() {
  QStringList sigle;
  for (int i = 0; i < ui_->lstSigle->count(); ++i) sigle += ui_->lstSigle->item(i)->text();
  ScriviSigle(fileSigle_, sigle);
  accept();
}

void frmFileSigle::cmdAnnulla_Click() { reject(); }

void frmFileSigle::done(int esito) {
  stato_.FileBatch = fileBatchPrima_;
  QDialog::done(esito);
}

}  // namespace torvi
