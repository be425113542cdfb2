// Correction of a source as plain text, field by field. Accepted when "Esci e salva" wrote the row.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmModificaFonte;
}

class frmModificaFonte : public QDialog {
  Q_OBJECT

 public:
  // `indiceFonte`: the row of the list; negative: none, and the fields stay empty.
  frmModificaFonte(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceFonte,
                   QWidget* padre = nullptr);
  ~frmModificaFonte() override;

  // Fills all controls from the row. Past the rows: error 9.
  void PreparaFonteDaModificare();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void cmdEsci_Click();
  [[nodiscard]] RigaFonte& Riga();

  std::unique_ptr<Ui::frmModificaFonte> ui_;
  StatoGlobale& stato_;
  qint16 indiceFonte_;
};

}  // namespace torvi
