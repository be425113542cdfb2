// The chooser of an output file, or of a list of deliveries, among the files of one folder.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmSceltaFileOut;
}

class frmSceltaFileOut : public QDialog {
  Q_OBJECT

 public:
  // The files of `cartella` that match `modello`; `conNuovo` shows the button for a new name.
  frmSceltaFileOut(Dialoghi& dialoghi, const QString& cartella, const QString& modello,
                   bool conNuovo, QWidget* padre = nullptr);
  ~frmSceltaFileOut() override;

  QString FileBatch;  // stands as it is however the form is left

 private:
  void fileListOut_Click();
  void cmdConferma_Click();
  void cmdNuovo_Click();
  void cmdAnnulla_Click();

  std::unique_ptr<Ui::frmSceltaFileOut> ui_;
  Dialoghi& dialoghi_;
  QString cartella_;
};

}  // namespace torvi
