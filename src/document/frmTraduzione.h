// The translation of the title. Accepted: it is stored in its buffer.
#pragma once

#include <memory>

#include "document/finestra_testo_breve.h"

namespace torvi {

namespace Ui {
class frmTraduzione;
}

class frmTraduzione : public FinestraTestoBreve {
  Q_OBJECT

 public:
  // Reads the archive where the buffer is empty; its failures are thrown.
  frmTraduzione(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento,
                QWidget* padre = nullptr);
  ~frmTraduzione() override;

 private:
  std::unique_ptr<Ui::frmTraduzione> ui_;
};

}  // namespace torvi
