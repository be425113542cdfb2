// An author or curator of the document. Accepted when "Esci e salva" ran: a row was added or
// changed, and the caller rebuilds its list.
#pragma once

#include <QDialog>
#include <memory>

#include "document/responsabilita.h"
#include "shell/dialoghi.h"

namespace torvi {

namespace Ui {
class frmResponsabilita;
}

class frmResponsabilita : public QDialog {
  Q_OBJECT

 public:
  // A negative index adds a row.
  frmResponsabilita(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceResponsabilita,
                    QWidget* padre = nullptr);
  ~frmResponsabilita() override;

  void PreparaResponsabilitaNuova();
  // Fills the form from its row; nothing where the index is negative. Past the rows: error 9.
  void PreparaResponsabilitaModifica();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void cmdEsci_Click();
  void Mostra(const CampiResponsabilita& campi);

  std::unique_ptr<Ui::frmResponsabilita> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  qint16 indiceResponsabilita_;
};

}  // namespace torvi
