// The window that shows an error file.
#pragma once

#include <QDialog>
#include <memory>

namespace torvi {

namespace Ui {
class frmWndErrori;
}

class frmWndErrori : public QDialog {
  Q_OBJECT

 public:
  explicit frmWndErrori(const QString& testoErrori, QWidget* padre = nullptr);
  ~frmWndErrori() override;

 private:
  void cmdChiudi_Click();

  std::unique_ptr<Ui::frmWndErrori> ui_;
};

}  // namespace torvi
