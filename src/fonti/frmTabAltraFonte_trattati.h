// The treaties of the archive, over the tabs of the form of other law while one is chosen.
#pragma once

#include <QGroupBox>
#include <memory>

#include "archive/recordset.h"
#include "shell/condizione_parole.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmTabAltraFonte_trattati;
}

class frmTabAltraFonte_trattati : public QGroupBox {
  Q_OBJECT

 public:
  // Keeps `TabNIT` open as long as it lives.
  frmTabAltraFonte_trattati(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre = nullptr);
  ~frmTabAltraFonte_trattati() override;

  // All treaties listed, none chosen, the focus in the search.
  void Prepara();

 Q_SIGNALS:
  // The line for the free text of the tab.
  void Scelto(const QString& linea);
  void Abbandonato();

 protected:
  // Enter searches, or completes what is typed; Esc leaves.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void ElencaNIT();
  void cmdCercaNIT_Click();
  void cmdClearNIT_Click();
  void cmdSalvaNIT_Click();
  void lstNIT_Click();
  void optParte_Click(bool scelta);
  void CompletaDaLista();
  [[nodiscard]] ModoCampo Modo() const;

  std::unique_ptr<Ui::frmTabAltraFonte_trattati> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  Recordset tabNIT_;
};

}  // namespace torvi
