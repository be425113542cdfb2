// Classification of a document before 2000: one code of a tree. Accepted when "Esci e salva" ran to
// its end, whether it made a row or not.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"
#include "shell/finestra_uscita_campo.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmClassificazione1999;
}

class frmClassificazione1999 : public QDialog {
  Q_OBJECT

 public:
  frmClassificazione1999(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                         QWidget* padre = nullptr);
  ~frmClassificazione1999() override;

  // Fills the form from row `indiceClasse`, before it is shown in change mode; nothing where it is
  // negative. Past the rows: error 9.
  void PreparaClasseDaModificare();
  void done(int esito) override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  bool txtCodice_LostFocus();
  void cmdEsci_Click();

  std::unique_ptr<Ui::frmClassificazione1999> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  qint16 indiceClasse_;
  std::unique_ptr<UscitaCampo> uscita_;
};

}  // namespace torvi
