// A general picker of one line.
#pragma once

#include <QDialog>
#include <memory>

namespace torvi {

namespace Ui {
class frmLista;
}

class frmLista : public QDialog {
  Q_OBJECT

 public:
  explicit frmLista(const QStringList& voci, QWidget* padre = nullptr);
  ~frmLista() override;

  QString ValoreLista;  // the line chosen; empty: cancelled

 protected:
  // Enter on a line chooses it.
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void lstLista_DblClick();
  void cmdEsci_Click();

  std::unique_ptr<Ui::frmLista> ui_;
};

}  // namespace torvi
