// Mnemonics that a menu and something else claim.
#pragma once

#include <QMenuBar>
#include <QObject>

namespace torvi {

// A menu of the bar that is disabled leaves its mnemonic to the button of a form in the window that
// has the same one.
class MnemoniciDellaBarra : public QObject {
 public:
  // Lives as long as the bar.
  explicit MnemoniciDellaBarra(QMenuBar& barra);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QMenuBar& barra_;
};

// In its menu an entry has its mnemonic to itself: the key chooses it, whoever else has the letter.
class MnemonicoDiVoce : public QObject {
 public:
  // Lives as long as the menu.
  MnemonicoDiVoce(QMenu& menu, QAction& voce);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QMenu& menu_;
  QAction& voce_;
};

}  // namespace torvi
