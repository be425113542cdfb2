// The login of the restricted commands.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmLogin;
}

class frmLogin : public QDialog {
  Q_OBJECT

 public:
  frmLogin(Dialoghi& dialoghi, QString passwordRiservata, QWidget* padre = nullptr);
  ~frmLogin() override;

  bool LoginRiservato = false;  // True once the right password was given

 private:
  void cmdOK_Click();
  void cmdCancel_Click();

  std::unique_ptr<Ui::frmLogin> ui_;
  Dialoghi& dialoghi_;
  QString passwordRiservata_;
};

}  // namespace torvi
