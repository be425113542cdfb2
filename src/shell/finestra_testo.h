// Texts of several lines between the archive, where a line ends in CR LF, and the screen.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "shell/dialoghi.h"

namespace torvi {

// Shows a text as freshly loaded: nothing of it can be undone.
void MostraTesto(QPlainTextEdit& controllo, const QString& testo);
// What stands in the control, lines ended by CR LF. A text that nobody changed since MostraTesto
// comes back as it was given, single CR and LF included.
[[nodiscard]] QString TestoMostrato(const QPlainTextEdit& controllo);
// True where the text stands as MostraTesto showed it, or the operator confirms that it may go.
[[nodiscard]] bool LasciaTesto(const QPlainTextEdit& controllo, Dialoghi& dialoghi);
// A text of several lines that is pasted into the field becomes one, with blanks: line ends that
// nobody sees there would tear the record that is exported.
void TieneInUnaRiga(QLineEdit& campo);

// A text that is one line, however many the screen breaks it into: a line end that is typed, pasted
// or dropped becomes a blank, so that the save does not join the words around it. One that comes
// from the archive stays.
class TestoDiUnaRiga : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* dati) override;
  void keyPressEvent(QKeyEvent* evento) override;
};

}  // namespace torvi
