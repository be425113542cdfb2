// Entering and leaving a field, by the rules that all forms share.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace torvi {

// Whether the operator goes from one control to another: not for a menu or a list that drops down,
// nor for another window.
[[nodiscard]] bool CambiaControllo(Qt::FocusReason motivo);

// Selects a whole text that got the focus, so that typing replaces it. After a press of the mouse
// it waits until the press is over, which would put the caret in the midst of the text.
void SelezionaTutto(QLineEdit& campo, Qt::FocusReason motivo);
void SelezionaTutto(QPlainTextEdit& campo, Qt::FocusReason motivo);
// Does so each time that the operator comes to the field.
void SelezionaConIlFuoco(QLineEdit& campo);

// When a dialog goes, the window that it stood over has the focus back, also where no window
// manager sees to it, and where a box goes together with its form.
class FuocoAlRitorno : public QObject {
 public:
  // Watches all dialogs as long as the main window lives.
  explicit FuocoAlRitorno(QWidget& principale);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QWidget& principale_;
};

}  // namespace torvi
