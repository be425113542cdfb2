#include "classificazione/frmLogin.h"

#include "shell/finestra_misure.h"
#include "ui_frmLogin.h"

namespace torvi {

frmLogin::frmLogin(Dialoghi& dialoghi, QString passwordRiservata, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmLogin>()),
      dialoghi_(dialoghi),
      passwordRiservata_(std::move(passwordRiservata)) {
  ui_->setupUi(this);
  AdattaAlloSchermo(*this);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
}

frmLogin::~frmLogin() = default;

// The user name is not read.
void frmLogin::cmdOK_Click() {
  LoginRiservato = ui_->txtPassword->text() == passwordRiservata_;
  if (LoginRiservato) {
    accept();
    return;
  }
  dialoghi_.Messaggio(QStringLiteral("Invalid Password, try again!"), QStringLiteral("Login"));
  ui_->txtPassword->setFocus();
  ui_->txtPassword->selectAll();
}

void frmLogin::cmdCancel_Click() {
  LoginRiservato = false;
  reject();
}

}  // namespace torvi
