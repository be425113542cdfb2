// Documents found by one field. Accepted when "Interroga" was pressed: ModoRicerca is True, and the
// caller opens the document form on IDDocumentoScelto. However else it is left, ModoRicerca is
// False.
#pragma once

#include <QDialog>
#include <memory>

#include "document/ricerca.h"

namespace torvi {

namespace Ui {
class frmRicerca;
}

class frmRicerca : public QDialog {
  Q_OBJECT

 public:
  // Forgets the last search.
  frmRicerca(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmRicerca() override;
  void done(int esito) override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void ComboCampo_Click();
  void optParte_Click(bool scelta);
  void cmdRicerca_Click();
  // A way to match a part of the field; a locked one cannot be changed.
  void ProponeParte(ModoCampo modo, bool bloccata);
  [[nodiscard]] const CampoRicerca* Campo() const;
  [[nodiscard]] ModoCampo Modo() const;

  std::unique_ptr<Ui::frmRicerca> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  RisultatoRicerca risultato_;
};

}  // namespace torvi
