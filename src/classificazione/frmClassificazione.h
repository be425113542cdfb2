// Classification of a document of 2000 or later: a systematic code with descriptors, or with one
// asterisked term. Accepted when "Esci e salva" ran to its end, whether it made a row or not.
#pragma once

#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <memory>

#include "shell/dialoghi.h"
#include "shell/finestra_uscita_campo.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmClassificazione;
}

class frmClassificazione : public QDialog {
  Q_OBJECT

 public:
  // NuovaClasse tells the mode. An archive without asterisked terms: error 3021.
  frmClassificazione(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                     QWidget* padre = nullptr);
  ~frmClassificazione() override;

  // Fills the form from row `indiceClasse`, before it is shown in change mode; nothing where it is
  // negative. Past the rows: error 9.
  void PreparaClasseDaModificare();
  void done(int esito) override;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  using Gestore = void (frmClassificazione::*)();
  void Collega(QPushButton& pulsante, Gestore gestore);
  // Once the systematic code has been checked, if it is due.
  void Comanda(Gestore gestore);

  void PreparaForm();
  bool txtSistematico_LostFocus();
  void cmdDescrittoreN_Click();
  void cmdDescrittoreD_Click();
  void cmdAsteriscati_Click();
  void cmdEsci_Click();
  void labelD_Click();
  void lstAsteriscato_Click();
  void DescrittoreErrato();
  [[nodiscard]] std::optional<QString> Descrizione() const;

  std::unique_ptr<Ui::frmClassificazione> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  qint16 indiceClasse_;
  std::unique_ptr<UscitaCampo> uscita_;
};

}  // namespace torvi
