#include "fonti/frmTabAltraFonte.h"

#include "fonti/anteprima.h"
#include "fonti/frmTabAltraFonte_pagina.h"
#include "fonti/frmTabAltraFonte_trattati.h"
#include "fonti/voci_altra.h"
#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmTabAltraFonte.h"

namespace torvi {

frmTabAltraFonte::frmTabAltraFonte(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmTabAltraFonte>()),
      stato_(stato),
      dialoghi_(dialoghi),
      frameNIT_(new frmTabAltraFonte_trattati(stato, dialoghi, this)) {
  ui_->setupUi(this);
  ui_->piani->addWidget(frameNIT_);
  for (int indice = 0; indice < static_cast<int>(SchedeAltra().size()); ++indice) {
    AggiungiScheda(indice);
  }
  connect(ui_->SSTabAltra, &QTabWidget::currentChanged, this, &frmTabAltraFonte::MostraAnteprima);
  connect(frameNIT_, &frmTabAltraFonte_trattati::Scelto, this,
          &frmTabAltraFonte::cmdSalvaNIT_Click);
  connect(frameNIT_, &frmTabAltraFonte_trattati::Abbandonato, this,
          &frmTabAltraFonte::cmdAbbandonaNIT_Click);
  MostraAnteprima();
  AdattaAlloSchermo(*this);
  ScegliScheda(0);
}

frmTabAltraFonte::~frmTabAltraFonte() = default;

void frmTabAltraFonte::ScegliScheda(int scheda) {
  ui_->SSTabAltra->setCurrentIndex(scheda);
  pagine_.at(static_cast<std::size_t>(scheda))->TornaAllaVoce();
}

void frmTabAltraFonte::AggiungiScheda(int indice) {
  auto* pagina = new frmTabAltraFonte_pagina(stato_, dialoghi_, indice, this);
  pagine_.push_back(pagina);
  ui_->SSTabAltra->addTab(pagina,
                          QString::fromUtf16(SchedeAltra()[static_cast<std::size_t>(indice)]));
  connect(pagina, &frmTabAltraFonte_pagina::Cambiato, this, &frmTabAltraFonte::MostraAnteprima);
  connect(pagina, &frmTabAltraFonte_pagina::Trattati, this, &frmTabAltraFonte::MostraTrattati);
  connect(pagina, &frmTabAltraFonte_pagina::Esce, this, &QDialog::done);
}

void frmTabAltraFonte::MostraAnteprima() {
  const auto scheda = static_cast<std::size_t>(ui_->SSTabAltra->currentIndex());
  ui_->labelAnteprima->Mostra(
      ComponiAnteprima(stato_, &SalvaFonteAltra, pagine_.at(scheda)->Leggi()));
}

void frmTabAltraFonte::MostraTrattati(bool aperti) {
  if (!aperti) {
    ui_->piani->setCurrentWidget(ui_->SSTabAltra);
    return;
  }
  ui_->piani->setCurrentWidget(frameNIT_);
  Esegui(dialoghi_, [this] { frameNIT_->Prepara(); });
}

void frmTabAltraFonte::cmdSalvaNIT_Click(const QString& linea) {
  MostraTrattati(false);
  pagine_.front()->MettiTrattato(linea);
}

void frmTabAltraFonte::cmdAbbandonaNIT_Click() {
  MostraTrattati(false);
  pagine_.front()->TornaAllaVoce();
}

void frmTabAltraFonte::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

}  // namespace torvi
