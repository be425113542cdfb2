// The login of the restricted commands.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/accesso_riservato.h"
#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmLogin;
}

class frmLogin : public QDialog {
  Q_OBJECT

 public:
  frmLogin(Dialoghi& dialoghi, QString passwordRiservata, PasswordErrate& errate,
           QWidget* padre = nullptr);
  ~frmLogin() override;

  bool LoginRiservato = false;  // True once the right password was given

 private:
  void cmdOK_Click();
  void cmdCancel_Click();
  // No attempt as long as the pause lasts.
  void Attendi();

  std::unique_ptr<Ui::frmLogin> ui_;
  Dialoghi& dialoghi_;
  QString passwordRiservata_;
  PasswordErrate& errate_;
};

}  // namespace torvi
