// Entry of sources of internal law. Accepted when "Esci e salva" composed a source; the caller then
// rebuilds its list. The sources saved before "Abbandona" stay in RigheFonte all the same.
#pragma once

#include <QDialog>
#include <memory>

#include "fonti/composizione.h"
#include "fonti/interroga_catalogo.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmTabInterna;
}
class frmTabInterna_catalogo;
class frmTabInterna_pagina;

class frmTabInterna : public QDialog {
  Q_OBJECT

 public:
  // Reads the lists of the archive; throws what that throws.
  frmTabInterna(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmTabInterna() override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  using Gestore = void (frmTabInterna::*)();
  void PreparaSchede();
  void PreparaCatalogo();
  void SSTabInterna_Click();
  void cmdSalva_Click();
  void cmdClear_Click();
  void cmdEsciSalva_Click();
  void cmdCatalogoFonti_Click();
  void Trasferisci(const AttoTrovato& atto);
  void ChiudiCatalogo();
  EsitoFonte SalvaFonte();
  void MostraAnteprima();
  // The page that is shown.
  [[nodiscard]] frmTabInterna_pagina& Pagina() const;

  std::unique_ptr<Ui::frmTabInterna> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  std::vector<frmTabInterna_pagina*> pagine_;
  frmTabInterna_catalogo* catalogo_ = nullptr;
};

}  // namespace torvi
