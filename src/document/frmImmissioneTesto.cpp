#include "document/frmImmissioneTesto.h"

#include "ui_frmImmissioneTesto.h"

namespace torvi {

frmImmissioneTesto::frmImmissioneTesto(const QString& etichetta, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmImmissioneTesto>()) {
  ui_->setupUi(this);
  ui_->Label1->setText(etichetta);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmImmissioneTesto::cmdOK_Click);
}

frmImmissioneTesto::~frmImmissioneTesto() = default;

void frmImmissioneTesto::reject() { cmdOK_Click(); }

void frmImmissioneTesto::cmdOK_Click() {
  TestoEsteso = ui_->Text1->text();
  accept();
}

}  // namespace torvi
