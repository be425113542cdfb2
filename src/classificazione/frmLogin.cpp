#include "classificazione/frmLogin.h"

#include <QTimer>

#include "shell/finestra_misure.h"
#include "ui_frmLogin.h"

namespace torvi {

frmLogin::frmLogin(Dialoghi& dialoghi, QString passwordRiservata, PasswordErrate& errate,
                   QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmLogin>()),
      dialoghi_(dialoghi),
      passwordRiservata_(std::move(passwordRiservata)),
      errate_(errate) {
  ui_->setupUi(this);
  AdattaAlloSchermo(*this);
  connect(ui_->cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
  connect(ui_->cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
  Attendi();
}

frmLogin::~frmLogin() = default;

// The user name is not read.
void frmLogin::cmdOK_Click() {
  LoginRiservato = ui_->txtPassword->text() == passwordRiservata_;
  if (LoginRiservato) {
    errate_.quante = 0;
    accept();
    return;
  }
  errate_.attesa.setRemainingTime(PausaDopo(++errate_.quante));
  Attendi();
  dialoghi_.Messaggio(QStringLiteral("Invalid Password, try again!"), QStringLiteral("Login"));
  ui_->txtPassword->setFocus();
  ui_->txtPassword->selectAll();
}

void frmLogin::Attendi() {
  using std::chrono::ceil;
  using std::chrono::seconds;
  const auto resta = ceil<seconds>(errate_.attesa.remainingTimeAsDuration()).count();
  ui_->cmdOK->setEnabled(resta == 0);
  ui_->labelAttesa->setText(
      resta == 0
          ? QString()
          : QStringLiteral("Password errate: attendere %1 s prima di riprovare.").arg(resta));
  constexpr std::chrono::milliseconds kPasso(200);
  if (resta != 0) QTimer::singleShot(kPasso, this, &frmLogin::Attendi);
}

void frmLogin::cmdCancel_Click() {
  LoginRiservato = false;
  reject();
}

}  // namespace torvi
