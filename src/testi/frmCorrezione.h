// Lays the findings of a check before the operator, one after the other. Accepted at the end of the
// text, rejected where the operator stops before; what was corrected is in the revision either way.
#pragma once

#include <QDialog>
#include <functional>
#include <memory>

#include "shell/dialoghi.h"
#include "testi/correttore.h"

namespace torvi {

namespace Ui {
class frmCorrezione;
}

class frmCorrezione : public QDialog {
  Q_OBJECT

 public:
  // The revision has a finding in hand.
  frmCorrezione(Revisione& revisione, Controllo controllo, Lingua lingua, Dialoghi& dialoghi,
                QWidget* padre = nullptr);
  ~frmCorrezione() override;

 protected:
  // Up and down choose a suggestion from the replacement too.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void lstSuggerimenti_Click();
  void cmdSostituisci_Click();
  void cmdSostituisciTutto_Click();
  void cmdIgnora_Click();
  void cmdIgnoraTutto_Click();
  void cmdAggiungi_Click();

  // Deals with the finding in hand and shows the next one.
  void Prosegui(const std::function<void()>& comando);
  void Mostra();
  void MostraContesto(const Segnalazione& segnalazione);
  void MostraProposte(const Segnalazione& segnalazione);

  std::unique_ptr<Ui::frmCorrezione> ui_;
  Revisione& revisione_;
  Dialoghi& dialoghi_;
};

}  // namespace torvi
