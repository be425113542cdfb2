#include "classificazione/frmClassificazione.h"

#include <QMouseEvent>

#include "classificazione/codici_classe.h"
#include "classificazione/esci_classificazione.h"
#include "classificazione/frmAsteriscati.h"
#include "shell/finestra_frecce.h"
#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmClassificazione.h"

namespace torvi {
namespace {

const auto kTitolo = QStringLiteral("Attenzione!");

QStringList Linee(const QListWidget& lista) {
  QStringList linee;
  for (int i = 0; i < lista.count(); ++i) linee += lista.item(i)->text();
  return linee;
}

}  // namespace

frmClassificazione::frmClassificazione(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                                       QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmClassificazione>()),
      stato_(stato),
      dialoghi_(dialoghi),
      indiceClasse_(indiceClasse) {
  ui_->setupUi(this);
  PreparaForm();
  uscita_ = std::make_unique<UscitaCampo>(*ui_->txtSistematico, *ui_->cmdAbbandona,
                                          [this] { return txtSistematico_LostFocus(); });
  Collega(*ui_->cmdDescrittoreN, &frmClassificazione::cmdDescrittoreN_Click);
  Collega(*ui_->cmdDescrittoreD, &frmClassificazione::cmdDescrittoreD_Click);
  Collega(*ui_->cmdAsteriscati, &frmClassificazione::cmdAsteriscati_Click);
  Collega(*ui_->cmdEsci, &frmClassificazione::cmdEsci_Click);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &QDialog::reject);
  connect(ui_->lstAsteriscato, &QListWidget::itemSelectionChanged, this,
          &frmClassificazione::lstAsteriscato_Click);
  connect(ui_->lstAsteriscato, &QListWidget::itemClicked, this,
          &frmClassificazione::lstAsteriscato_Click);
  connect(ui_->lstAsteriscato, &QListWidget::itemActivated, this,
          [](QListWidgetItem* scelto) { scelto->setSelected(true); });
  for (QLabel* etichetta : {ui_->LabelS, ui_->labelD}) etichetta->installEventFilter(this);
  for (QListWidget* lista : {ui_->lstDescrittore, ui_->lstAsteriscato}) new PrimaFreccia(*lista);
  AdattaAlloSchermo(*this);
}

frmClassificazione::~frmClassificazione() = default;

void frmClassificazione::Collega(QPushButton& pulsante, Gestore gestore) {
  connect(&pulsante, &QPushButton::clicked, this, [this, gestore] { Comanda(gestore); });
}

void frmClassificazione::Comanda(Gestore gestore) {
  if (uscita_->Conferma()) Esegui(dialoghi_, [this, gestore] { (this->*gestore)(); });
}

void frmClassificazione::PreparaForm() {
  const bool nuova = stato_.NuovaClasse;
  ui_->lstDescrittore->setEnabled(nuova);
  for (QWidget* controllo :
       {static_cast<QWidget*>(ui_->cmdDescrittoreN), static_cast<QWidget*>(ui_->cmdDescrittoreD),
        static_cast<QWidget*>(ui_->Label7)}) {
    controllo->setVisible(nuova);
  }
  for (QLabel* etichetta : {ui_->labelD, ui_->Label5}) etichetta->setVisible(!nuova);
  ui_->lstAsteriscato->addItems(TerminiAsteriscati(stato_.DbArchivio));
}

void frmClassificazione::PreparaClasseDaModificare() {
  if (indiceClasse_ < 0) return;
  const auto posto = static_cast<std::size_t>(indiceClasse_);
  if (posto >= stato_.RigheClasse.size()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  const RigaClasse& riga = stato_.RigheClasse[posto];
  ui_->txtSistematico->setText(riga.Sistematico);
  txtSistematico_LostFocus();
  ui_->lstDescrittore->clear();
  if (riga.Descrittore.isEmpty()) return;
  if (riga.Descrittore.startsWith(QLatin1Char('*'))) {
    ui_->txtAsteriscato->setText(riga.Descrittore);
    return;
  }
  ui_->txtDescrittore->setText(riga.Descrittore);
  cmdDescrittoreN_Click();
}

bool frmClassificazione::txtSistematico_LostFocus() {
  const QString codice = ui_->txtSistematico->text();
  if (codice.isEmpty()) return true;
  bool valido = true;
  Esegui(dialoghi_, [&] {
    const auto descrizione = DescrizioneSistematico(stato_.DbArchivio, codice);
    valido = descrizione.has_value();
    if (valido) {
      ui_->LabelS->setText(*descrizione);
    } else {
      dialoghi_.Messaggio(QStringLiteral("Codice sistematico errato!"), kTitolo);
    }
  });
  if (!valido) ui_->txtSistematico->setFocus();
  return valido;
}

std::optional<QString> frmClassificazione::Descrizione() const {
  return DescrizioneDescrittore(stato_.DbArchivio, ui_->txtDescrittore->text());
}

void frmClassificazione::DescrittoreErrato() {
  dialoghi_.Messaggio(QStringLiteral("Codice descrittore errato!"), kTitolo);
  ui_->txtDescrittore->setFocus();
  ui_->txtDescrittore->clear();
}

void frmClassificazione::cmdDescrittoreN_Click() {
  const QString codice = ui_->txtDescrittore->text();
  if (stato_.NuovaClasse && codice.isEmpty()) return;
  const auto descrizione = Descrizione();
  if (!stato_.NuovaClasse) {
    if (descrizione) ui_->labelD->setText(*descrizione);
  } else if (descrizione) {
    ui_->lstDescrittore->addItem(RigaDescrittore(codice, *descrizione));
    ui_->txtDescrittore->clear();
  } else {
    DescrittoreErrato();
  }
}

void frmClassificazione::cmdDescrittoreD_Click() {
  const auto scelti = ui_->lstDescrittore->selectedItems();
  if (scelti.isEmpty()) return;
  delete scelti.first();
  // The next one is not to go by a second press.
  ui_->lstDescrittore->clearSelection();
}

void frmClassificazione::labelD_Click() {
  if (ui_->txtDescrittore->text().isEmpty()) return;
  const auto descrizione = Descrizione();
  if (descrizione) {
    ui_->labelD->setText(*descrizione);
  } else {
    DescrittoreErrato();
  }
}

void frmClassificazione::lstAsteriscato_Click() {
  const auto scelti = ui_->lstAsteriscato->selectedItems();
  if (!scelti.isEmpty()) ui_->txtAsteriscato->setText(scelti.first()->text());
}

void frmClassificazione::cmdAsteriscati_Click() { frmAsteriscati(stato_.DbArchivio, this).exec(); }

void frmClassificazione::cmdEsci_Click() {
  EsciClassificazione(stato_, dialoghi_, indiceClasse_,
                      {.txtSistematico = ui_->txtSistematico->text(),
                       .txtDescrittore = ui_->txtDescrittore->text(),
                       .lstDescrittore = Linee(*ui_->lstDescrittore),
                       .txtAsteriscato = ui_->txtAsteriscato->text()});
  accept();
}

void frmClassificazione::done(int esito) {
  uscita_->Finisci();
  QDialog::done(esito);
}

bool frmClassificazione::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonRelease &&
      static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton) {
    if (oggetto == ui_->LabelS) {
      txtSistematico_LostFocus();
    } else {
      Comanda(&frmClassificazione::labelD_Click);
    }
    return true;
  }
  return QDialog::eventFilter(oggetto, evento);
}

void frmClassificazione::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (invio && ui_->txtDescrittore->hasFocus()) {
    Comanda(&frmClassificazione::cmdDescrittoreN_Click);
  } else if (!InvioAvanti(*this, *evento)) {
    QDialog::keyPressEvent(evento);
  }
}

}  // namespace torvi
