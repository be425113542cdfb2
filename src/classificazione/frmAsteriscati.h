// The asterisk pairs that are allowed, for reading only.
#pragma once

#include <QDialog>
#include <memory>

#include "archive/database.h"

namespace torvi {

namespace Ui {
class frmAsteriscati;
}

class frmAsteriscati : public QDialog {
  Q_OBJECT

 public:
  // A failure of the archive is thrown.
  explicit frmAsteriscati(const Database& archivio, QWidget* padre = nullptr);
  ~frmAsteriscati() override;

 private:
  std::unique_ptr<Ui::frmAsteriscati> ui_;
};

}  // namespace torvi
