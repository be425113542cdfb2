#include "fonti/frmModificaFonte.h"

#include <array>

#include "archive/errore.h"
#include "fonti/modifica_fonte.h"
#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/finestra_testo.h"
#include "shell/guardia.h"
#include "ui_frmModificaFonte.h"

namespace torvi {
namespace {

struct Casella {
  QLineEdit* Ui::frmModificaFonte::*campo;
  QString RigaFonte::*valore;
};

constexpr std::array kCaselle = {
    Casella{&Ui::frmModificaFonte::txtTP, &RigaFonte::TP},
    Casella{&Ui::frmModificaFonte::txtFonte, &RigaFonte::FonteNorm},
    Casella{&Ui::frmModificaFonte::txtGG, &RigaFonte::Giorno},
    Casella{&Ui::frmModificaFonte::txtMM, &RigaFonte::Mese},
    Casella{&Ui::frmModificaFonte::txtAA, &RigaFonte::Anno},
    Casella{&Ui::frmModificaFonte::txtN, &RigaFonte::Numero},
    Casella{&Ui::frmModificaFonte::txtArt, &RigaFonte::Articolo},
    Casella{&Ui::frmModificaFonte::txtRipA, &RigaFonte::RipA},
    Casella{&Ui::frmModificaFonte::txtComma, &RigaFonte::Comma},
    Casella{&Ui::frmModificaFonte::txtRipC, &RigaFonte::RipC},
    Casella{&Ui::frmModificaFonte::txtLett, &RigaFonte::Lettera},
    Casella{&Ui::frmModificaFonte::txtNumP, &RigaFonte::NumeroP},
    Casella{&Ui::frmModificaFonte::txtAll, &RigaFonte::Allegato},
    Casella{&Ui::frmModificaFonte::txtMinistero, &RigaFonte::Ministero},
    Casella{&Ui::frmModificaFonte::txtAmministrazione, &RigaFonte::Amministrazione},
    Casella{&Ui::frmModificaFonte::txtAutorita, &RigaFonte::Autorita},
    Casella{&Ui::frmModificaFonte::txtStato, &RigaFonte::Stato},
    Casella{&Ui::frmModificaFonte::txtCitta, &RigaFonte::Citta},
    Casella{&Ui::frmModificaFonte::txtSezione, &RigaFonte::Sezione},
    Casella{&Ui::frmModificaFonte::txtRegione, &RigaFonte::Regione},
    Casella{&Ui::frmModificaFonte::txtProvincia, &RigaFonte::Provincia},
    Casella{&Ui::frmModificaFonte::txtAltro, &RigaFonte::Altro}};

}  // namespace

frmModificaFonte::frmModificaFonte(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceFonte,
                                   QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmModificaFonte>()),
      stato_(stato),
      indiceFonte_(indiceFonte) {
  ui_->setupUi(this);
  AdattaAlloSchermo(*this);
  connect(ui_->cmdEsci, &QPushButton::clicked, this,
          [this, &dialoghi] { Esegui(dialoghi, [this] { cmdEsci_Click(); }); });
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &QDialog::reject);
}

frmModificaFonte::~frmModificaFonte() = default;

RigaFonte& frmModificaFonte::Riga() {
  const auto posto = static_cast<std::size_t>(indiceFonte_);
  if (posto >= stato_.RigheFonte.size()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  return stato_.RigheFonte[posto];
}

void frmModificaFonte::PreparaFonteDaModificare() {
  if (indiceFonte_ < 0) return;
  const RigaFonte& riga = Riga();
  for (const Casella& casella : kCaselle) {
    QLineEdit& campo = *((*ui_).*casella.campo);
    campo.setText(riga.*casella.valore);
    campo.setCursorPosition(0);
  }
  ui_->chkDecr->setChecked(riga.Decreto);
  ui_->chkOrd->setChecked(riga.Ordinanza);
  MostraTesto(*ui_->txtTesto, TestoDaModificare(riga));
}

void frmModificaFonte::cmdEsci_Click() {
  if (indiceFonte_ >= 0) {
    RigaFonte scritta;
    for (const Casella& casella : kCaselle) {
      scritta.*casella.valore = ((*ui_).*casella.campo)->text();
    }
    scritta.Decreto = ui_->chkDecr->isChecked();
    scritta.Ordinanza = ui_->chkOrd->isChecked();
    scritta.Testo = TestoMostrato(*ui_->txtTesto);
    ModificaFonte(Riga(), std::move(scritta));
  }
  accept();
}

void frmModificaFonte::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

}  // namespace torvi
