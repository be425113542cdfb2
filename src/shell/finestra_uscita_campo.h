// A field whose text is checked when the operator leaves it. A refused text brings the focus back;
// it never stands in the way of closing the form.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <functional>

namespace torvi {

class UscitaCampo : public QObject {
 public:
  // `controllo` shows its message and gives false for a text that may not stand. Leaving for
  // `abbandona` by mouse or mnemonic runs no check.
  UscitaCampo(QLineEdit& campo, QWidget& abbandona, std::function<bool()> controllo);

  // Runs the check now, where the field has the focus or its check is due. False if the text was
  // refused, or its message still stands: the command that the focus was left for must not run.
  bool Conferma();
  // The same before a command by key, which leaves the focus where it is. An empty field is let
  // through, and so is a text that was refused once already: whoever insists has been told.
  bool ConfermaTasto();
  // The form is closing: no more checks.
  void Finisci() { finito_ = true; }
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  bool Controlla();
  // Whether a command by key would run no check.
  [[nodiscard]] bool Libero() const { return campo_.text().isEmpty() || rifiutato_; }

  QLineEdit& campo_;
  QWidget& abbandona_;
  std::function<bool()> controllo_;
  bool rifiutato_ = false;  // the text that stands there
  bool entrato_ = false;
  bool dovuto_ = false;
  bool inCorso_ = false;
  bool finito_ = false;
};

}  // namespace torvi
