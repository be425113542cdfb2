#include "document/frmHelpTastiFunzione.h"

#include <QShortcut>

#include "ui_frmHelpTastiFunzione.h"

namespace torvi {

frmHelpTastiFunzione::frmHelpTastiFunzione(QWidget* padre) : QDialog(padre) {
  Ui::frmHelpTastiFunzione().setupUi(this);
  for (const Qt::Key tasto : {Qt::Key_Return, Qt::Key_Enter}) {
    connect(new QShortcut(tasto, this), &QShortcut::activated, this, &QDialog::accept);
  }
}

}  // namespace torvi
