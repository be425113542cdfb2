#include "shell/finestra_uscita_campo.h"

#include <QApplication>
#include <QFocusEvent>

#include "shell/finestra_fuoco.h"

namespace torvi {
namespace {

bool DaTastiera(Qt::FocusReason motivo) {
  return motivo == Qt::TabFocusReason || motivo == Qt::BacktabFocusReason;
}

}  // namespace

UscitaCampo::UscitaCampo(QLineEdit& campo, QWidget& abbandona, std::function<bool()> controllo)
    : campo_(campo), abbandona_(abbandona), controllo_(std::move(controllo)) {
  campo_.installEventFilter(this);
  connect(&campo_, &QLineEdit::textChanged, this, [this] { rifiutato_ = false; });
}

bool UscitaCampo::Conferma() {
  // A mnemonic presses its button without moving the focus.
  if (campo_.hasFocus()) dovuto_ = true;
  return Controlla();
}

bool UscitaCampo::ConfermaTasto() {
  if (inCorso_) return false;
  if (campo_.hasFocus() && Libero()) return true;
  return Conferma();
}

bool UscitaCampo::Controlla() {
  if (inCorso_) return false;
  if (!dovuto_ || finito_) return true;
  dovuto_ = false;
  inCorso_ = true;
  const bool valido = controllo_();
  inCorso_ = false;
  rifiutato_ = !valido;
  if (!valido) campo_.setFocus();
  return valido;
}

bool UscitaCampo::eventFilter(QObject* oggetto, QEvent* evento) {
  // A form that is not shown yet passes its focus about.
  if (evento->type() == QEvent::FocusIn) entrato_ = campo_.isVisible();
  if (evento->type() == QEvent::FocusOut && entrato_ && !inCorso_ && !finito_) {
    const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
    const bool chiude = QApplication::focusWidget() == &abbandona_ && !DaTastiera(motivo);
    // The program moves the focus at the end of a command, which came after the check.
    const bool controllato = motivo == Qt::OtherFocusReason && rifiutato_;
    if (CambiaControllo(motivo) && !chiude && !controllato) {
      dovuto_ = true;
      // Once the focus has settled: a box in the midst of its move would leave a button pressed.
      QMetaObject::invokeMethod(
          this, [this] { Controlla(); }, Qt::QueuedConnection);
    }
  }
  return QObject::eventFilter(oggetto, evento);
}

}  // namespace torvi
