#include "fonti/frmTabAltraFonte_trattati.h"

#include <QKeyEvent>

#include "fonti/trattati.h"
#include "shell/finestra_cerca_lista.h"
#include "shell/finestra_frecce.h"
#include "shell/guardia.h"
#include "ui_frmTabAltraFonte_trattati.h"

namespace torvi {

frmTabAltraFonte_trattati::frmTabAltraFonte_trattati(StatoGlobale& stato, Dialoghi& dialoghi,
                                                     QWidget* padre)
    : QGroupBox(padre),
      ui_(std::make_unique<Ui::frmTabAltraFonte_trattati>()),
      stato_(stato),
      dialoghi_(dialoghi),
      tabNIT_(stato.DbArchivio.OpenRecordset(QStringLiteral("TabNIT"))) {
  ui_->setupUi(this);
  ElencaNIT();
  new PrimaFreccia(*ui_->lstNIT);
  new VoceEsatta(*ui_->lstNIT);
  connect(ui_->optParte, &QRadioButton::toggled, this, &frmTabAltraFonte_trattati::optParte_Click);
  connect(ui_->cmdCercaNIT, &QPushButton::clicked, this,
          &frmTabAltraFonte_trattati::cmdCercaNIT_Click);
  connect(ui_->cmdClearNIT, &QPushButton::clicked, this,
          &frmTabAltraFonte_trattati::cmdClearNIT_Click);
  connect(ui_->cmdSalvaNIT, &QPushButton::clicked, this,
          &frmTabAltraFonte_trattati::cmdSalvaNIT_Click);
  connect(ui_->cmdAbbandonaNIT, &QPushButton::clicked, this,
          &frmTabAltraFonte_trattati::Abbandonato);
  connect(ui_->lstNIT, &QListWidget::itemClicked, this, &frmTabAltraFonte_trattati::lstNIT_Click);
  // Arrows choose as a click does; what typing finds is shown only.
  connect(ui_->lstNIT, &QListWidget::itemSelectionChanged, this, [this] {
    if (ui_->lstNIT->hasFocus()) lstNIT_Click();
  });
  connect(ui_->txtLiberoNIT, &QLineEdit::textChanged, this,
          [this](const QString& testo) { CercaNellaLista(*ui_->lstNIT, testo); });
}

frmTabAltraFonte_trattati::~frmTabAltraFonte_trattati() = default;

void frmTabAltraFonte_trattati::Prepara() {
  ElencaNIT();
  ui_->txtLiberoNIT->clear();
  ui_->txtNIT->setFocus();
}

void frmTabAltraFonte_trattati::ElencaNIT() {
  ui_->lstNIT->clear();
  ui_->lstNIT->addItems(torvi::ElencaNIT(tabNIT_));
  ui_->optIntero->setChecked(true);
  optParte_Click(false);
  ui_->txtNIT->clear();
}

// Each time anew from the first way to match a part.
void frmTabAltraFonte_trattati::optParte_Click(bool scelta) {
  ui_->ComboParte->setEnabled(scelta);
  if (scelta) ui_->ComboParte->setCurrentIndex(0);
}

ModoCampo frmTabAltraFonte_trattati::Modo() const {
  if (ui_->optIntero->isChecked()) return ModoCampo::Intero;
  return kVociParte.at(static_cast<std::size_t>(ui_->ComboParte->currentIndex()));
}

void frmTabAltraFonte_trattati::cmdCercaNIT_Click() {
  const QString parole = ui_->txtNIT->text();
  if (parole.isEmpty()) return;
  Esegui(dialoghi_, [&] {
    const QStringList linee = CercaNIT(stato_.DbArchivio, Modo(), parole);
    if (linee.isEmpty()) {
      dialoghi_.Messaggio(
          QStringLiteral("Non ci sono atti che soddisfano la ricerca - cambiare e riprovare"));
      return;
    }
    ui_->lstNIT->clear();
    ui_->lstNIT->addItems(linee);
    ui_->lstNIT->setFocus();
  });
}

void frmTabAltraFonte_trattati::cmdClearNIT_Click() {
  Esegui(dialoghi_, [this] { ElencaNIT(); });
}

void frmTabAltraFonte_trattati::cmdSalvaNIT_Click() { Q_EMIT Scelto(ui_->txtLiberoNIT->text()); }

void frmTabAltraFonte_trattati::lstNIT_Click() {
  const auto scelte = ui_->lstNIT->selectedItems();
  if (!scelte.isEmpty()) ui_->txtLiberoNIT->setText(scelte.first()->text());
}

void frmTabAltraFonte_trattati::CompletaDaLista() {
  const auto scelte = ui_->lstNIT->selectedItems();
  const QString inizio = ui_->txtLiberoNIT->text();
  if (inizio.isEmpty() || scelte.isEmpty()) return;
  if (scelte.first()->text().startsWith(inizio, Qt::CaseInsensitive)) lstNIT_Click();
}

void frmTabAltraFonte_trattati::keyPressEvent(QKeyEvent* evento) {
  const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
  if (evento->key() == Qt::Key_Escape) {
    Q_EMIT Abbandonato();
  } else if (invio && ui_->txtNIT->hasFocus()) {
    ui_->cmdCercaNIT->click();
  } else {
    if (invio && ui_->txtLiberoNIT->hasFocus()) CompletaDaLista();
    evento->ignore();  // the form moves on
  }
}

}  // namespace torvi
