#include "export/frmWndErrori.h"

#include <QFontDatabase>

#include "shell/finestra_misure.h"
#include "ui_frmWndErrori.h"

namespace torvi {

frmWndErrori::frmWndErrori(const QString& testoErrori, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmWndErrori>()) {
  ui_->setupUi(this);
  ui_->txtErrori->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  ui_->txtErrori->setPlainText(testoErrori);
  AdattaAlloSchermo(*this);
  connect(ui_->cmdChiudi, &QPushButton::clicked, this, &frmWndErrori::cmdChiudi_Click);
}

frmWndErrori::~frmWndErrori() = default;

void frmWndErrori::cmdChiudi_Click() { close(); }

}  // namespace torvi
