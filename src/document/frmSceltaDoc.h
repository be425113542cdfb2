// The choice of a document to edit (modal; Accepted when one was chosen) or of documents to delete
// (not modal, so that the menus stay at hand).
#pragma once

#include <QDialog>
#include <memory>

#include "document/scelta.h"

namespace torvi {

namespace Ui {
class frmSceltaDoc;
}

class frmSceltaDoc : public QDialog {
  Q_OBJECT

 public:
  // mnuAggiornamentoEdita: true if IDDocumentoScelto is to be opened in the document form.
  [[nodiscard]] static bool ChiediDocumento(StatoGlobale& stato, Dialoghi& dialoghi,
                                            QWidget* padre);
  // mnuAggiornamentoCancella: the form goes by itself when it is closed; one that is open already
  // comes to the front.
  static void ApriCancellazione(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre);

  // Fills its list and chooses the first line.
  frmSceltaDoc(StatoGlobale& stato, Dialoghi& dialoghi, ModoScelta modo, QWidget* padre = nullptr);
  ~frmSceltaDoc() override;
  // False: there is no document, and the form is not to be shown.
  [[nodiscard]] bool Caricata() const { return caricata_; }

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void Mostra();
  void SegueCorrente();
  void lstDocumento_Click();
  void cmdEdita_Click();
  void cmdCancella_Click();

  std::unique_ptr<Ui::frmSceltaDoc> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  SceltaDoc scelta_;
  bool caricata_ = true;
};

}  // namespace torvi
