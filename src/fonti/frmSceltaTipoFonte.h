// The kind of law of a new source.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmSceltaTipoFonte;
}

class frmSceltaTipoFonte : public QDialog {
  Q_OBJECT

 public:
  // Leaves its outcome in TipoFonteScelto: without an option chosen the former one stays, abandoned
  // it is emptied.
  explicit frmSceltaTipoFonte(StatoGlobale& stato, QWidget* padre = nullptr);
  ~frmSceltaTipoFonte() override;

  void reject() override;

 protected:
  // Enter on an option chooses it and goes on.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void cmdProcedi_Click();

  std::unique_ptr<Ui::frmSceltaTipoFonte> ui_;
  StatoGlobale& stato_;
};

}  // namespace torvi
