#include "document/frmResponsabilita.h"

#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/finestra_testo.h"
#include "shell/guardia.h"
#include "ui_frmResponsabilita.h"

namespace torvi {

frmResponsabilita::frmResponsabilita(StatoGlobale& stato, Dialoghi& dialoghi,
                                     qint16 indiceResponsabilita, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmResponsabilita>()),
      stato_(stato),
      dialoghi_(dialoghi),
      indiceResponsabilita_(indiceResponsabilita) {
  ui_->setupUi(this);
  PreparaResponsabilitaNuova();
  for (QLineEdit* nome : {ui_->txtElementoPr, ui_->txtElementoSec}) TieneInUnaRiga(*nome);
  AdattaAlloSchermo(*this);
  connect(ui_->cmdEsci, &QPushButton::clicked, this,
          [this] { Esegui(dialoghi_, [this] { cmdEsci_Click(); }); });
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &QDialog::reject);
}

frmResponsabilita::~frmResponsabilita() = default;

void frmResponsabilita::PreparaResponsabilitaNuova() { Mostra({}); }

void frmResponsabilita::PreparaResponsabilitaModifica() {
  if (indiceResponsabilita_ >= 0) Mostra(CampiDellaRiga(stato_, indiceResponsabilita_));
}

void frmResponsabilita::Mostra(const CampiResponsabilita& campi) {
  ui_->txtElementoPr->setText(campi.txtElementoPr);
  ui_->txtElementoSec->setText(campi.txtElementoSec);
  // A long name shows its beginning.
  for (QLineEdit* nome : {ui_->txtElementoPr, ui_->txtElementoSec}) nome->home(false);
  (campi.optAutore ? ui_->optAutore : ui_->optCuratore)->setChecked(true);
}

void frmResponsabilita::cmdEsci_Click() {
  EsciResponsabilita(stato_, indiceResponsabilita_,
                     {.txtElementoPr = ui_->txtElementoPr->text(),
                      .txtElementoSec = ui_->txtElementoSec->text(),
                      .optAutore = ui_->optAutore->isChecked()});
  accept();
}

void frmResponsabilita::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

}  // namespace torvi
