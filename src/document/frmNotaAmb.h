// The note field. Accepted: it is stored in its buffer.
#pragma once

#include <memory>

#include "document/finestra_testo_breve.h"

namespace torvi {

namespace Ui {
class frmNotaAmb;
}

class frmNotaAmb : public FinestraTestoBreve {
  Q_OBJECT

 public:
  // Reads the archive where the buffer is empty; its failures are thrown.
  frmNotaAmb(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento,
             QWidget* padre = nullptr);
  ~frmNotaAmb() override;

 private:
  std::unique_ptr<Ui::frmNotaAmb> ui_;
};

}  // namespace torvi
