#include "fonti/frmSceltaTipoFonte.h"

#include <QKeyEvent>

#include "fonti/tipi_fonte.h"
#include "ui_frmSceltaTipoFonte.h"

namespace torvi {

frmSceltaTipoFonte::frmSceltaTipoFonte(StatoGlobale& stato, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmSceltaTipoFonte>()), stato_(stato) {
  ui_->setupUi(this);
  connect(ui_->cmdProcedi, &QPushButton::clicked, this, &frmSceltaTipoFonte::cmdProcedi_Click);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &QDialog::reject);
}

frmSceltaTipoFonte::~frmSceltaTipoFonte() = default;

void frmSceltaTipoFonte::cmdProcedi_Click() {
  for (const TipoFonte& tipo : TipiFonte()) {
    if (!findChild<QRadioButton*>(QLatin1String(tipo.opzione))->isChecked()) continue;
    stato_.TipoFonteScelto = QLatin1String(tipo.codice);
    break;
  }
  accept();
}

void frmSceltaTipoFonte::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
    auto* opzione = qobject_cast<QRadioButton*>(focusWidget());
    if (opzione != nullptr) opzione->setChecked(true);
  }
  QDialog::keyPressEvent(evento);
}

void frmSceltaTipoFonte::reject() {
  stato_.TipoFonteScelto.clear();
  QDialog::reject();
}

}  // namespace torvi
