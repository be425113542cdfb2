#include "fonti/frmTabInterna.h"

#include <QTabBar>

#include "fonti/anteprima.h"
#include "fonti/frmTabInterna_catalogo.h"
#include "fonti/frmTabInterna_pagina.h"
#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmTabInterna.h"

namespace torvi {

frmTabInterna::frmTabInterna(StatoGlobale& stato, Dialoghi& dialoghi, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmTabInterna>()),
      stato_(stato),
      dialoghi_(dialoghi) {
  ui_->setupUi(this);
  PreparaSchede();
  PreparaCatalogo();
  AdattaAlloSchermo(*this);
  connect(ui_->SSTabInterna, &QTabWidget::currentChanged, this, &frmTabInterna::SSTabInterna_Click);
  MostraAnteprima();
  Pagina().Entra();
}

frmTabInterna::~frmTabInterna() = default;

void frmTabInterna::PreparaSchede() {
  using Pagina = frmTabInterna_pagina;
  const std::pair<void (Pagina::*)(), Gestore> comandi[] = {
      {&Pagina::Salva, &frmTabInterna::cmdSalva_Click},
      {&Pagina::SalvaEPulisci, &frmTabInterna::cmdClear_Click},
      {&Pagina::EsciESalva, &frmTabInterna::cmdEsciSalva_Click},
      {&Pagina::ConsultaCatalogo, &frmTabInterna::cmdCatalogoFonti_Click}};
  for (const SchedaInterna& scheda : SchedeInterna()) {
    auto* pagina =
        new frmTabInterna_pagina(stato_, dialoghi_, static_cast<int>(pagine_.size()), this);
    pagine_.push_back(pagina);
    ui_->SSTabInterna->addTab(pagina, QString::fromUtf16(scheda.titolo));
    connect(pagina, &Pagina::Cambiato, this, &frmTabInterna::MostraAnteprima);
    connect(pagina, &Pagina::Abbandona, this, &QDialog::reject);
    for (const auto& [segnale, gestore] : comandi) {
      connect(pagina, segnale, this,
              [this, gestore = gestore] { Esegui(dialoghi_, [&] { (this->*gestore)(); }); });
    }
  }
}

void frmTabInterna::PreparaCatalogo() {
  catalogo_ = new frmTabInterna_catalogo(dialoghi_, this);
  ui_->fogli->addWidget(catalogo_);
  connect(catalogo_, &frmTabInterna_catalogo::Trasferito, this, &frmTabInterna::Trasferisci);
  connect(catalogo_, &frmTabInterna_catalogo::Chiuso, this, &frmTabInterna::ChiudiCatalogo);
}

frmTabInterna_pagina& frmTabInterna::Pagina() const {
  return *pagine_.at(static_cast<std::size_t>(ui_->SSTabInterna->currentIndex()));
}

void frmTabInterna::SSTabInterna_Click() {
  Pagina().Pulisci();
  // Who walks along the tabs with the arrows stays there.
  if (!ui_->SSTabInterna->tabBar()->hasFocus()) Pagina().Entra();
}

EsitoFonte frmTabInterna::SalvaFonte() {
  Pagina().Conferma();
  return SalvaFonteInterna(stato_, dialoghi_, Pagina().Leggi());
}

void frmTabInterna::cmdSalva_Click() { SalvaFonte(); }

void frmTabInterna::cmdClear_Click() {
  SalvaFonte();
  Pagina().Pulisci();
  Pagina().Entra();
}

void frmTabInterna::cmdEsciSalva_Click() {
  if (SalvaFonte() == EsitoFonte::Composta) accept();
}

void frmTabInterna::cmdCatalogoFonti_Click() {
  catalogo_->Apri(stato_.CartellaApplicazione);
  ui_->fogli->setCurrentWidget(catalogo_);
  catalogo_->setFocus();
}

void frmTabInterna::Trasferisci(const AttoTrovato& atto) {
  ChiudiCatalogo();
  Pagina().MettiAtto(atto);
}

void frmTabInterna::ChiudiCatalogo() { ui_->fogli->setCurrentIndex(0); }

void frmTabInterna::MostraAnteprima() {
  ui_->labelAnteprima->Mostra(ComponiAnteprima(stato_, &SalvaFonteInterna, Pagina().Leggi()));
}

void frmTabInterna::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

}  // namespace torvi
