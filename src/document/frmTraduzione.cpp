#include "document/frmTraduzione.h"

#include "ui_frmTraduzione.h"

namespace torvi {

frmTraduzione::frmTraduzione(StatoGlobale& stato, Dialoghi& dialoghi, qint64 numeroDocumento,
                             QWidget* padre)
    : FinestraTestoBreve(stato, dialoghi, QStringLiteral("Traduzione"), padre),
      ui_(std::make_unique<Ui::frmTraduzione>()) {
  ui_->setupUi(this);
  Prepara(*ui_->txtTraduzione, *ui_->cmdEsci, *ui_->cmdAbbandona, numeroDocumento);
}

frmTraduzione::~frmTraduzione() = default;

}  // namespace torvi
