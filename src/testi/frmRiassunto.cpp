#include "testi/frmRiassunto.h"

#include <QTextCursor>

#include "shell/finestra_misure.h"
#include "shell/finestra_testo.h"
#include "shell/guardia.h"
#include "testi/finestra_sottolineatura.h"
#include "testi/frmCorrezione.h"
#include "ui_frmRiassunto.h"

namespace torvi {

frmRiassunto::frmRiassunto(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
                           QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmRiassunto>()),
      stato_(stato),
      dialoghi_(dialoghi),
      tipo_(TrovaTipoRiassunto(stato.TipoTestoRiassunto)),
      TestoIniziale(stato.*tipo_.testo),
      correttore_(tipo_.lingua, dizionari, [this](Revisione& revisione, Controllo controllo) {
        frmCorrezione(revisione, controllo, tipo_.lingua, dialoghi_, this).exec();
      }) {
  ui_->setupUi(this);
  setWindowTitle(QLatin1String(tipo_.titolo));
  ui_->Label1->setText(QLatin1String(tipo_.etichetta));
  MostraTesto(*ui_->txtRiassunto, TestoIniziale);
  txtRiassunto_Change();
  Sottolinea();
  AdattaAlloSchermo(*this);
  connect(ui_->txtRiassunto, &QPlainTextEdit::textChanged, this,
          &frmRiassunto::txtRiassunto_Change);
  connect(ui_->cmdControlloOrtografico, &QPushButton::clicked, this,
          &frmRiassunto::cmdControlloOrtografico_Click);
  connect(ui_->cmdControlloGrammaticale, &QPushButton::clicked, this,
          &frmRiassunto::cmdControlloGrammaticale_Click);
  connect(ui_->cmdUndo, &QPushButton::clicked, this, &frmRiassunto::cmdUndo_Click);
  connect(ui_->cmdEsci, &QPushButton::clicked, this, &frmRiassunto::cmdEsci_Click);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, [this] { done(Rejected); });
}

frmRiassunto::~frmRiassunto() = default;

void frmRiassunto::reject() {
  if (LasciaTesto(*ui_->txtRiassunto, dialoghi_)) QDialog::reject();
}

void frmRiassunto::MettiTesto(const QString& testo) {
  QTextCursor cursore(ui_->txtRiassunto->document());
  cursore.select(QTextCursor::Document);
  cursore.insertText(testo);
}

void frmRiassunto::txtRiassunto_Change() {
  ui_->lblConteggio->setText(QString::number(TestoMostrato(*ui_->txtRiassunto).length()));
}

void frmRiassunto::Sottolinea() {
  try {
    const Ortografia& ortografia = correttore_.ApriOrtografia();
    if (!sottolineatura_) {
      sottolineatura_ = std::make_unique<Sottolineatura>(ui_->txtRiassunto->document(), ortografia);
    }
    sottolineatura_->rehighlight();
    ui_->lblDizionario->hide();
  } catch (const ErroreEsecuzione&) {
    // Nothing was asked for yet that could not be done: a check tells what is missing.
    ui_->lblDizionario->setText(
        QStringLiteral("Le parole errate non sono sottolineate: il dizionario %1 non c'è o non si "
                       "può leggere.")
            .arg(NomeLingua(tipo_.lingua)));
    ui_->lblDizionario->show();
  }
}

void frmRiassunto::Controlla(Controllo controllo) {
  Esegui(dialoghi_, [this, controllo] {
    const QString testo = TestoMostrato(*ui_->txtRiassunto);
    const QString corretto =
        TestoControllato(correttore_, controllo, testo, TestoIniziale, dialoghi_);
    if (corretto != testo) MettiTesto(corretto);
    dialoghi_.Messaggio(MessaggioFine(controllo), {}, Icona::Informazione);
  });
  Sottolinea();
}

void frmRiassunto::cmdControlloOrtografico_Click() { Controlla(Controllo::Ortografico); }

void frmRiassunto::cmdControlloGrammaticale_Click() { Controlla(Controllo::Grammaticale); }

void frmRiassunto::cmdUndo_Click() {
  MettiTesto(TestoIniziale);
  dialoghi_.Messaggio(QStringLiteral("Ripristinato testo originale!"), {}, Icona::Informazione);
}

void frmRiassunto::cmdEsci_Click() {
  SalvaRiassunto(stato_, tipo_, TestoMostrato(*ui_->txtRiassunto));
  accept();
}

}  // namespace torvi
