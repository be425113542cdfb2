// The data of a new delivery, asked before its archive is made.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmInformazione;
}

class frmInformazione : public QDialog {
  Q_OBJECT

 public:
  frmInformazione(Dialoghi& dialoghi, int annoCorrente, QWidget* padre = nullptr);
  ~frmInformazione() override;

  QString InfoNuovoArchivio;  // the four fields joined by '|'; empty: cancelled

 private:
  void cmdOk_Click();
  void cmdAnnulla_Click();

  std::unique_ptr<Ui::frmInformazione> ui_;
  Dialoghi& dialoghi_;
};

}  // namespace torvi
