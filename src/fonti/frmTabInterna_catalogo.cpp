#include "fonti/frmTabInterna_catalogo.h"

#include <QKeyEvent>

#include "archive/errore.h"
#include "fonti/controlli_fonte.h"
#include "fonti/elenchi_fonte.h"
#include "shell/finestra_combo.h"
#include "shell/finestra_frecce.h"
#include "shell/guardia.h"
#include "ui_frmTabInterna_catalogo.h"

namespace torvi {

frmTabInterna_catalogo::frmTabInterna_catalogo(Dialoghi& dialoghi, QWidget* padre)
    : QWidget(padre), ui_(std::make_unique<Ui::frmTabInterna_catalogo>()), dialoghi_(dialoghi) {
  ui_->setupUi(this);
  ui_->ComboCatalogoFonte->addItems(VociCatalogo());
  ui_->ComboCatalogoFonte->lineEdit()->setPlaceholderText(SegnapostoProvvedimento());
  ui_->ComboCatalogoMese->addItem(kMese);
  ui_->ComboCatalogoMese->addItems(NomiMesi());
  mese_ = new ComboDiCodici(*ui_->ComboCatalogoMese, kMese);
  new PrimaFreccia(*ui_->lstRisultato);
  setFocusProxy(ui_->ComboCatalogoFonte);
  connect(ui_->optParte, &QRadioButton::toggled, this, &frmTabInterna_catalogo::optParte_Click);
  connect(ui_->cmdCercaCatalogo, &QPushButton::clicked, this,
          &frmTabInterna_catalogo::cmdCercaCatalogo_Click);
  connect(ui_->lstRisultato, &QListWidget::itemSelectionChanged, this,
          &frmTabInterna_catalogo::lstRisultato_Click);
  connect(ui_->lstRisultato, &QListWidget::itemDoubleClicked, this,
          &frmTabInterna_catalogo::lstRisultato_DblClick);
  connect(ui_->cmdAbbandonaCatalogo, &QPushButton::clicked, this,
          &frmTabInterna_catalogo::cmdAbbandonaCatalogo_Click);
}

frmTabInterna_catalogo::~frmTabInterna_catalogo() = default;

void frmTabInterna_catalogo::Apri(const QString& cartellaApplicazione) {
  ui_->lstRisultato->clear();
  ui_->txtRisultato->clear();
  ui_->ComboCatalogoFonte->setCurrentIndex(-1);
  ui_->ComboCatalogoFonte->clearEditText();
  for (QLineEdit* campo : {ui_->txtCatalogoGiorno, ui_->txtCatalogoAnno, ui_->txtCatalogoNumero}) {
    campo->clear();
  }
  try {
    catalogo_.Apri(cartellaApplicazione);
  } catch (const ErroreEsecuzione&) {
    catalogo_.Chiudi();
  }
}

DomandaCatalogo frmTabInterna_catalogo::Domanda() const {
  return {.ComboCatalogoFonte = ui_->ComboCatalogoFonte->currentText(),
          .txtCatalogoGiorno = ui_->txtCatalogoGiorno->text(),
          .ComboCatalogoMese = ui_->ComboCatalogoMese->currentText(),
          .txtCatalogoAnno = ui_->txtCatalogoAnno->text(),
          .txtCatalogoNumero = ui_->txtCatalogoNumero->text(),
          .txtCatalogoParola = ui_->txtCatalogoParola->text(),
          .modo = ui_->optIntero->isChecked()
                      ? ModoCampo::Intero
                      : kVociParte.at(static_cast<std::size_t>(ui_->ComboParte->currentIndex()))};
}

void frmTabInterna_catalogo::optParte_Click(bool scelta) {
  if (scelta) ui_->ComboParte->setCurrentIndex(0);
  ui_->ComboParte->setEnabled(scelta);
}

void frmTabInterna_catalogo::cmdCercaCatalogo_Click() {
  mese_->Conferma();
  Esegui(dialoghi_, [this] {
    const QString istruzione = IstruzioneCatalogo(Domanda());
    if (istruzione.isEmpty()) return;
    const QStringList linee = catalogo_.Cerca(istruzione);
    if (linee.isEmpty()) {
      dialoghi_.Messaggio(QStringLiteral(
          "Non ci sono provvedimenti che soddisfano la ricerca - cambiare e riprovare"));
      return;
    }
    ui_->lstRisultato->clear();
    ui_->lstRisultato->addItems(linee);
    ui_->lstRisultato->setFocus();
  });
}

QString frmTabInterna_catalogo::LineaScelta() const {
  const auto scelti = ui_->lstRisultato->selectedItems();
  return scelti.isEmpty() ? QString() : scelti.first()->text();
}

void frmTabInterna_catalogo::lstRisultato_Click() {
  const QString linea = LineaScelta();
  if (linea.isEmpty()) return;
  Esegui(dialoghi_, [&] { ui_->txtRisultato->setPlainText(catalogo_.Descrivi(linea)); });
}

void frmTabInterna_catalogo::lstRisultato_DblClick() {
  const QString linea = LineaScelta();
  if (linea.isEmpty()) return;
  Esegui(dialoghi_, [&] {
    const AttoTrovato atto = catalogo_.Trasferisci(linea);
    catalogo_.Chiudi();
    Q_EMIT Trasferito(atto);
  });
}

void frmTabInterna_catalogo::cmdAbbandonaCatalogo_Click() {
  catalogo_.Chiudi();
  Q_EMIT Chiuso();
}

void frmTabInterna_catalogo::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (evento->key() == Qt::Key_Escape) {
    cmdAbbandonaCatalogo_Click();
  } else if (invio && ui_->lstRisultato->hasFocus()) {
    lstRisultato_DblClick();
  } else if (invio && ui_->txtCatalogoParola->hasFocus()) {
    ui_->cmdCercaCatalogo->click();
  } else {
    QWidget::keyPressEvent(evento);
  }
}

}  // namespace torvi
