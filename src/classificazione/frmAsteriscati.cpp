#include "classificazione/frmAsteriscati.h"

#include "classificazione/codici_classe.h"
#include "shell/finestra_frecce.h"
#include "shell/finestra_misure.h"
#include "ui_frmAsteriscati.h"

namespace torvi {

frmAsteriscati::frmAsteriscati(const Database& archivio, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmAsteriscati>()) {
  ui_->setupUi(this);
  ui_->lstAsteriscati->addItems(CoppieAsteriscate(archivio));
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &QDialog::reject);
  new PrimaFreccia(*ui_->lstAsteriscati);
  AdattaAlloSchermo(*this);
}

frmAsteriscati::~frmAsteriscati() = default;

}  // namespace torvi
