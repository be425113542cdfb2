// What the function keys do in the document form. Esc and Enter close it.
#pragma once

#include <QDialog>

namespace torvi {

class frmHelpTastiFunzione : public QDialog {
  Q_OBJECT

 public:
  explicit frmHelpTastiFunzione(QWidget* padre = nullptr);
};

}  // namespace torvi
