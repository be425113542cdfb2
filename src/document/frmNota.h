// The compiler's note to the document. Accepted: it is stored in its buffer.
#pragma once

#include <memory>

#include "document/finestra_testo_breve.h"

namespace torvi {

namespace Ui {
class frmNota;
}

class frmNota : public FinestraTestoBreve {
  Q_OBJECT

 public:
  // Reads the archive where the buffer is empty; its failures are thrown.
  frmNota(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento,
          QWidget* padre = nullptr);
  ~frmNota() override;

 private:
  std::unique_ptr<Ui::frmNota> ui_;
};

}  // namespace torvi
