#include "shell/finestra_invio.h"

#include <QCoreApplication>
#include <QPushButton>

namespace torvi {

bool InvioAvanti(QDialog& forma, const QKeyEvent& evento) {
  if (evento.key() != Qt::Key_Return && evento.key() != Qt::Key_Enter) return false;
  QWidget* fuoco = forma.focusWidget();
  if (auto* pulsante = qobject_cast<QPushButton*>(fuoco)) {
    pulsante->click();
  } else if (fuoco != nullptr) {
    QKeyEvent avanti(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(fuoco, &avanti);
  }
  return true;
}

}  // namespace torvi
