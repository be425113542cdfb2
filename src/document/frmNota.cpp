#include "document/frmNota.h"

#include "ui_frmNota.h"

namespace torvi {

frmNota::frmNota(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento, QWidget* padre)
    : FinestraTestoBreve(stato, dialoghi, QStringLiteral("NotaDoc"), padre),
      ui_(std::make_unique<Ui::frmNota>()) {
  ui_->setupUi(this);
  Prepara(*ui_->txtNotaDoc, *ui_->cmdEsci, *ui_->cmdAbbandona, numeroDocumento);
}

frmNota::~frmNota() = default;

}  // namespace torvi
