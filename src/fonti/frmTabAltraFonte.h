// Sources of all law that is not Italian. Accepted when "Esci e salva" added one: the caller then
// rebuilds its list with RigheDopoAltra.
#pragma once

#include <QDialog>
#include <memory>
#include <vector>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmTabAltraFonte;
}
class frmTabAltraFonte_pagina;
class frmTabAltraFonte_trattati;

class frmTabAltraFonte : public QDialog {
  Q_OBJECT

 public:
  // An archive without the table of treaties: error 3078.
  frmTabAltraFonte(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmTabAltraFonte() override;

  // Brings the operator to a kind of law, 0 to 4.
  void ScegliScheda(int scheda);

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void AggiungiScheda(int indice);
  // `frameNIT` lies over the tabs while a treaty is sought.
  void MostraTrattati(bool aperti);
  void cmdSalvaNIT_Click(const QString& linea);
  void cmdAbbandonaNIT_Click();
  void MostraAnteprima();

  std::unique_ptr<Ui::frmTabAltraFonte> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  std::vector<frmTabAltraFonte_pagina*> pagine_;  // owned by the tabs
  frmTabAltraFonte_trattati* frameNIT_;           // owned by the form
};

}  // namespace torvi
