// Makes and changes the list files of a batch.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmFileSigle;
}

class frmFileSigle : public QDialog {
  Q_OBJECT

 public:
  frmFileSigle(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmFileSigle() override;

  // A list is no output: FileBatch is again what it was before the form.
  void done(int esito) override;

 private:
  void cmdApriFileSigle_Click();
  void cmdNuovaSigla_Click();
  void cmdEliminaSigla_Click();
  void cmdEsciSalva_Click();
  void cmdAnnulla_Click();

  std::unique_ptr<Ui::frmFileSigle> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  QString fileBatchPrima_;
  QString fileSigle_;  // the file on screen
};

}  // namespace torvi
