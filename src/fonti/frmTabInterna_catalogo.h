// The look-up of an act in the catalogue of norms, over the tabs of the internal-law form.
#pragma once

#include <QWidget>
#include <memory>

#include "fonti/interroga_catalogo.h"
#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmTabInterna_catalogo;
}
class ComboDiCodici;

class frmTabInterna_catalogo : public QWidget {
  Q_OBJECT

 public:
  explicit frmTabInterna_catalogo(Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmTabInterna_catalogo() override;

  // Forgets the last search but for its month and words, and opens the catalogue. A catalogue that
  // is not there is told only by the search, as error 91.
  void Apri(const QString& cartellaApplicazione);

 Q_SIGNALS:
  void Trasferito(const torvi::AttoTrovato& atto);
  void Chiuso();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void optParte_Click(bool scelta);
  void cmdCercaCatalogo_Click();
  void lstRisultato_Click();
  void lstRisultato_DblClick();
  void cmdAbbandonaCatalogo_Click();
  [[nodiscard]] DomandaCatalogo Domanda() const;
  [[nodiscard]] QString LineaScelta() const;

  std::unique_ptr<Ui::frmTabInterna_catalogo> ui_;
  Dialoghi& dialoghi_;
  InterrogazioneCatalogo catalogo_;
  ComboDiCodici* mese_;  // owned by its combo
};

}  // namespace torvi
