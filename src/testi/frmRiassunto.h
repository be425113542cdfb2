// The editor of the four long texts. Which one it works on stands in TipoTestoRiassunto when it is
// made. Accepted: the text is stored in its buffer, and the caller shows whether it exists.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"
#include "testi/dizionario.h"
#include "testi/riassunto.h"

namespace torvi {

namespace Ui {
class frmRiassunto;
}

class frmRiassunto : public QDialog {
  Q_OBJECT

 public:
  // An unknown TipoTestoRiassunto is error 5.
  frmRiassunto(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
               QWidget* padre = nullptr);
  ~frmRiassunto() override;

 private:
  void txtRiassunto_Change();
  void cmdUndo_Click();
  void cmdEsci_Click();
  // Can be taken back like anything typed.
  void MettiTesto(const QString& testo);

  std::unique_ptr<Ui::frmRiassunto> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  Dizionari& dizionari_;
  const TipoRiassunto& tipo_;
  const QString TestoIniziale;  // the text as it was when the form opened
};

}  // namespace torvi
