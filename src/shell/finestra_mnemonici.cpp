#include "shell/finestra_mnemonici.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QShortcutEvent>

namespace torvi {

MnemoniciDellaBarra::MnemoniciDellaBarra(QMenuBar& barra) : QObject(&barra), barra_(barra) {
  barra.installEventFilter(this);
}

bool MnemoniciDellaBarra::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::Shortcut) return QObject::eventFilter(oggetto, evento);
  const QKeySequence tasto = static_cast<QShortcutEvent*>(evento)->key();
  for (const QAction* menu : barra_.actions()) {
    if (QKeySequence::mnemonic(menu->text()) == tasto && menu->isEnabled()) return false;
  }
  for (auto* pulsante : barra_.window()->findChildren<QAbstractButton*>()) {
    if (pulsante->shortcut() != tasto || !pulsante->isVisible()) continue;
    pulsante->click();
    break;
  }
  return true;
}

MnemonicoDiVoce::MnemonicoDiVoce(QMenu& menu, QAction& voce)
    : QObject(&menu), menu_(menu), voce_(voce) {
  menu.installEventFilter(this);
}

bool MnemonicoDiVoce::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(oggetto, evento);
  const int tasto = static_cast<QKeyEvent*>(evento)->key();
  if (QKeySequence(Qt::ALT | static_cast<Qt::Key>(tasto)) != QKeySequence::mnemonic(voce_.text())) {
    return false;
  }
  menu_.setActiveAction(&voce_);
  QKeyEvent invio(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(&menu_, &invio);
  return true;
}

}  // namespace torvi
