// What the forms of the three short texts share. Accepted: the text is stored in its buffer, and
// the caller shows whether it exists.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>
#include <QPushButton>

#include "document/testo_breve.h"
#include "shell/dialoghi.h"

namespace torvi {

class FinestraTestoBreve : public QDialog {
  Q_OBJECT

 protected:
  FinestraTestoBreve(StatoGlobale& stato, Dialoghi& dialoghi, const QString& nome, QWidget* padre);

  // After the controls are there: shows the text, and ties the buttons.
  void Prepara(QPlainTextEdit& controllo, const QPushButton& cmdEsci,
               const QPushButton& cmdAbbandona, qint64 numeroDocumento);
  void keyPressEvent(QKeyEvent* evento) override;
  // Esc and the close box, which may come by accident, ask before a text goes.
  void reject() override;

 private:
  void cmdEsci_Click(const QPlainTextEdit& controllo);

  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  const TestoBreve& breve_;
  const QPlainTextEdit* testo_ = nullptr;
};

}  // namespace torvi
