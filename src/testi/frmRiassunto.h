// The editor of the four long texts. Which one it works on stands in TipoTestoRiassunto when it is
// made. Accepted: the text is stored in its buffer, and the caller shows whether it exists.
// Misspelt words are underlined where there is a dictionary.
#pragma once

#include <QDialog>
#include <memory>

#include "shell/dialoghi.h"
#include "testi/correttore.h"
#include "testi/dizionario.h"
#include "testi/riassunto.h"

namespace torvi {

namespace Ui {
class frmRiassunto;
}

class Sottolineatura;

class frmRiassunto : public QDialog {
  Q_OBJECT

 public:
  // An unknown TipoTestoRiassunto is error 5.
  frmRiassunto(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
               QWidget* padre = nullptr);
  ~frmRiassunto() override;

  // Esc and the close box, which may come by accident, ask before a text goes.
  void reject() override;

 private:
  void txtRiassunto_Change();
  void cmdControlloOrtografico_Click();
  void cmdControlloGrammaticale_Click();
  void cmdUndo_Click();
  void cmdEsci_Click();
  // Can be taken back like anything typed.
  void MettiTesto(const QString& testo);
  void Controlla(Controllo controllo);
  void Sottolinea();

  std::unique_ptr<Ui::frmRiassunto> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  const TipoRiassunto& tipo_;
  const QString TestoIniziale;  // the text as it was when the form opened
  CorrettoreProprio correttore_;
  std::unique_ptr<Sottolineatura> sottolineatura_;  // only with a dictionary
};

}  // namespace torvi
