// The long form of a name that the code tables lack, typed in the middle of a save. There is no way
// to cancel: however the form is left, what stands in the box is the answer, empty too.
#pragma once

#include <QDialog>
#include <memory>

namespace torvi {

namespace Ui {
class frmImmissioneTesto;
}

class frmImmissioneTesto : public QDialog {
  Q_OBJECT

 public:
  // `etichetta`: kind and short form, such as "Ministero: " and the name.
  explicit frmImmissioneTesto(const QString& etichetta, QWidget* padre = nullptr);
  ~frmImmissioneTesto() override;

  QString TestoEsteso;

 public Q_SLOTS:
  // Esc and the close box.
  void reject() override;

 private:
  void cmdOK_Click();

  std::unique_ptr<Ui::frmImmissioneTesto> ui_;
};

}  // namespace torvi
