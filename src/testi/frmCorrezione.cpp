#include "testi/frmCorrezione.h"

#include <QKeyEvent>
#include <QTextCursor>

#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmCorrezione.h"

namespace torvi {
namespace {

// A proposal of blanks, or with blanks at its ends, would look like another or like none.
QString Visibile(QString proposta) {
  if (proposta.isEmpty()) return QStringLiteral("(niente)");
  return proposta.trimmed() == proposta ? proposta : proposta.replace(u' ', u'·');
}

// The control counts one character for the end of a line.
int PostoMostrato(const QString& testo, qsizetype posto) {
  return static_cast<int>(posto - testo.left(posto).count(QLatin1String("\r\n")));
}

}  // namespace

frmCorrezione::frmCorrezione(Revisione& revisione, Controllo controllo, Lingua lingua,
                             Dialoghi& dialoghi, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmCorrezione>()),
      revisione_(revisione),
      dialoghi_(dialoghi) {
  ui_->setupUi(this);
  const QString titolo = controllo == Controllo::Ortografico
                             ? QStringLiteral("Controllo ortografico: %1")
                             : QStringLiteral("Controllo grammaticale: %1");
  setWindowTitle(titolo.arg(NomeLingua(lingua)));
  ui_->cmdAggiungi->setVisible(revisione_.HaDizionario());
  ui_->cmdIgnoraTutto->setToolTip(controllo == Controllo::Ortografico
                                      ? QStringLiteral("Non segnalare più questa parola")
                                      : QStringLiteral("Non segnalare più questa regola"));
  connect(ui_->lstSuggerimenti, &QListWidget::currentRowChanged, this,
          &frmCorrezione::lstSuggerimenti_Click);
  connect(ui_->lstSuggerimenti, &QListWidget::itemDoubleClicked, this,
          &frmCorrezione::cmdSostituisci_Click);
  connect(ui_->cmdSostituisci, &QPushButton::clicked, this, &frmCorrezione::cmdSostituisci_Click);
  connect(ui_->cmdSostituisciTutto, &QPushButton::clicked, this,
          &frmCorrezione::cmdSostituisciTutto_Click);
  connect(ui_->cmdIgnora, &QPushButton::clicked, this, &frmCorrezione::cmdIgnora_Click);
  connect(ui_->cmdIgnoraTutto, &QPushButton::clicked, this, &frmCorrezione::cmdIgnoraTutto_Click);
  connect(ui_->cmdAggiungi, &QPushButton::clicked, this, &frmCorrezione::cmdAggiungi_Click);
  connect(ui_->cmdAnnulla, &QPushButton::clicked, this, &frmCorrezione::reject);
  AdattaAlloSchermo(*this);
  Mostra();
}

frmCorrezione::~frmCorrezione() = default;

void frmCorrezione::keyPressEvent(QKeyEvent* evento) {
  const int passo = evento->key() == Qt::Key_Down ? 1 : evento->key() == Qt::Key_Up ? -1 : 0;
  if (passo == 0 || !ui_->txtSostituzione->hasFocus()) {
    QDialog::keyPressEvent(evento);
    return;
  }
  const int riga = ui_->lstSuggerimenti->currentRow() + passo;
  if (riga >= 0 && riga < ui_->lstSuggerimenti->count()) {
    ui_->lstSuggerimenti->setCurrentRow(riga);
    ui_->txtSostituzione->selectAll();
  }
}

void frmCorrezione::Mostra() {
  if (!revisione_.Corrente()) {
    accept();
    return;
  }
  const Segnalazione& segnalazione = *revisione_.Corrente();
  ui_->lblSpiegazione->setText(segnalazione.spiegazione);
  // As word processors have it: there is nothing left to call off.
  if (revisione_.Modificato()) ui_->cmdAnnulla->setText(QStringLiteral("&Chiudi"));
  MostraContesto(segnalazione);
  MostraProposte(segnalazione);
  ui_->txtSostituzione->setFocus();
  ui_->txtSostituzione->selectAll();
}

void frmCorrezione::MostraContesto(const Segnalazione& segnalazione) {
  const QString& testo = revisione_.Testo();
  ui_->txtContesto->setPlainText(testo);
  QTextCursor cursore(ui_->txtContesto->document());
  cursore.setPosition(PostoMostrato(testo, segnalazione.inizio));
  ui_->txtContesto->setTextCursor(cursore);
  ui_->txtContesto->centerCursor();
  cursore.setPosition(PostoMostrato(testo, segnalazione.inizio + segnalazione.testo.size()),
                      QTextCursor::KeepAnchor);
  QTextEdit::ExtraSelection evidenza = {.cursor = cursore, .format = {}};
  evidenza.format.setBackground(QColor(255, 224, 130));
  evidenza.format.setForeground(QColor(160, 0, 0));
  ui_->txtContesto->setExtraSelections({evidenza});
}

void frmCorrezione::MostraProposte(const Segnalazione& segnalazione) {
  const QStringList proposte = revisione_.Proposte();
  ui_->lstSuggerimenti->clear();
  for (const QString& proposta : proposte) {
    auto* voce = new QListWidgetItem(Visibile(proposta), ui_->lstSuggerimenti);
    voce->setData(Qt::UserRole, proposta);
  }
  ui_->lstSuggerimenti->setEnabled(!proposte.isEmpty());
  ui_->txtSostituzione->setText(segnalazione.testo);
  ui_->lstSuggerimenti->setCurrentRow(0);
}

void frmCorrezione::lstSuggerimenti_Click() {
  const QListWidgetItem* voce = ui_->lstSuggerimenti->currentItem();
  if (voce != nullptr) ui_->txtSostituzione->setText(voce->data(Qt::UserRole).toString());
}

void frmCorrezione::Prosegui(const std::function<void()>& comando) {
  if (Esegui(dialoghi_, comando)) Mostra();
}

void frmCorrezione::cmdSostituisci_Click() {
  Prosegui([this] { revisione_.Sostituisci(ui_->txtSostituzione->text()); });
}

void frmCorrezione::cmdSostituisciTutto_Click() {
  Prosegui([this] { revisione_.SostituisciTutto(ui_->txtSostituzione->text()); });
}

void frmCorrezione::cmdIgnora_Click() {
  Prosegui([this] { revisione_.Ignora(); });
}

void frmCorrezione::cmdIgnoraTutto_Click() {
  Prosegui([this] { revisione_.IgnoraTutto(); });
}

void frmCorrezione::cmdAggiungi_Click() {
  Prosegui([this] { revisione_.AggiungiAlDizionario(); });
}

}  // namespace torvi
