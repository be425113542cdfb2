#include "document/frmRicerca.h"

#include <algorithm>

#include "shell/finestra_frecce.h"
#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmRicerca.h"

namespace torvi {

frmRicerca::frmRicerca(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmRicerca>()), stato_(stato), dialoghi_(dialoghi) {
  ui_->setupUi(this);
  for (const CampoRicerca& campo : CampiRicerca()) {
    ui_->ComboCampo->addItem(QString::fromUtf16(campo.voce));
  }
  ui_->ComboCampo->setCurrentIndex(-1);
  AzzeraRicerca(stato_);
  new PrimaFreccia(*ui_->lstRisultato);
  AdattaAlloSchermo(*this);
  // Also the item that is chosen already counts as clicked.
  connect(ui_->ComboCampo, &QComboBox::currentIndexChanged, this, &frmRicerca::ComboCampo_Click);
  connect(ui_->ComboCampo, &QComboBox::activated, this, &frmRicerca::ComboCampo_Click);
  connect(ui_->optParte, &QRadioButton::toggled, this, &frmRicerca::optParte_Click);
  connect(ui_->cmdRicerca, &QPushButton::clicked, this, &frmRicerca::cmdRicerca_Click);
  connect(ui_->cmdInterroga, &QPushButton::clicked, this, &QDialog::accept);
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &QDialog::reject);
}

frmRicerca::~frmRicerca() = default;

const CampoRicerca* frmRicerca::Campo() const {
  const int scelto = ui_->ComboCampo->currentIndex();
  return scelto < 0 ? nullptr : &CampiRicerca()[static_cast<std::size_t>(scelto)];
}

ModoCampo frmRicerca::Modo() const {
  if (ui_->optIntero->isChecked()) return ModoCampo::Intero;
  return kVociParte.at(static_cast<std::size_t>(ui_->ComboParte->currentIndex()));
}

void frmRicerca::ProponeParte(ModoCampo modo, bool bloccata) {
  const auto* parte = std::ranges::find(kVociParte, modo);
  ui_->ComboParte->setCurrentIndex(static_cast<int>(parte - kVociParte.begin()));
  ui_->ComboParte->setEnabled(!bloccata);
}

void frmRicerca::ComboCampo_Click() {
  const CampoRicerca* campo = Campo();
  if (campo == nullptr || !ui_->optParte->isChecked()) return;
  ProponeParte(campo->almenoUna ? ModoCampo::AlmenoUna : ModoCampo::Tutte, campo->almenoUna);
}

// The field counts only when it is chosen after this.
void frmRicerca::optParte_Click(bool scelta) {
  if (scelta) {
    ProponeParte(kVociParte.front(), false);
  } else {
    ui_->ComboParte->setEnabled(false);
  }
}

void frmRicerca::cmdRicerca_Click() {
  Esegui(dialoghi_, [this] {
    EseguiRicerca(stato_, dialoghi_, Campo(), Modo(), ui_->txtParola->text(), risultato_);
  });
  // What was found before a failure too.
  ui_->lstRisultato->clear();
  ui_->lstRisultato->addItems(risultato_.lstRisultato);
  ui_->cmdInterroga->setEnabled(risultato_.cmdInterroga);
}

void frmRicerca::done(int esito) {
  stato_.ModoRicerca = esito == QDialog::Accepted;
  QDialog::done(esito);
}

void frmRicerca::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && ui_->txtParola->hasFocus()) {
    ui_->cmdRicerca->click();
  } else if (!InvioAvanti(*this, *evento)) {
    QDialog::keyPressEvent(evento);
  }
}

}  // namespace torvi
