#include "document/frmNotaAmb.h"

#include "ui_frmNotaAmb.h"

namespace torvi {

frmNotaAmb::frmNotaAmb(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento,
                       QWidget* padre)
    : FinestraTestoBreve(stato, dialoghi, QStringLiteral("Nota"), padre),
      ui_(std::make_unique<Ui::frmNotaAmb>()) {
  ui_->setupUi(this);
  Prepara(*ui_->txtNota, *ui_->cmdEsci, *ui_->cmdAbbandona, numeroDocumento);
}

frmNotaAmb::~frmNotaAmb() = default;

}  // namespace torvi
