#include "classificazione/frmClassificazione1999.h"

#include "classificazione/codici_classe.h"
#include "classificazione/esci_classificazione.h"
#include "shell/finestra_invio.h"
#include "shell/guardia.h"
#include "ui_frmClassificazione1999.h"

namespace torvi {

frmClassificazione1999::frmClassificazione1999(StatoGlobale& stato, Dialoghi& dialoghi,
                                               qint16 indiceClasse, QWidget* padre)
    : QDialog(padre),
      ui_(std::make_unique<Ui::frmClassificazione1999>()),
      stato_(stato),
      dialoghi_(dialoghi),
      indiceClasse_(indiceClasse) {
  ui_->setupUi(this);
  uscita_ = std::make_unique<UscitaCampo>(*ui_->txtCodice, *ui_->cmdAbbandona,
                                          [this] { return txtCodice_LostFocus(); });
  connect(ui_->cmdEsci, &QPushButton::clicked, this, [this] {
    if (uscita_->Conferma()) Esegui(dialoghi_, [this] { cmdEsci_Click(); });
  });
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this, &QDialog::reject);
}

frmClassificazione1999::~frmClassificazione1999() = default;

void frmClassificazione1999::PreparaClasseDaModificare() {
  if (indiceClasse_ < 0) return;
  const auto posto = static_cast<std::size_t>(indiceClasse_);
  if (posto >= stato_.RigheClasse.size()) throw ErroreEsecuzione(Errore::IndiceNonValido);
  ui_->txtCodice->setText(stato_.RigheClasse[posto].Sistematico);
  txtCodice_LostFocus();
}

bool frmClassificazione1999::txtCodice_LostFocus() {
  const QString codice = ui_->txtCodice->text();
  if (codice.isEmpty()) return true;
  bool valido = true;
  Esegui(dialoghi_, [&] {
    const auto trovato = CercaCodice1999(stato_.DbArchivio, codice);
    valido = trovato.has_value();
    if (valido) {
      ui_->labelD->setText(trovato->descrizione);
      ui_->labelP->setText(trovato->padre);
    } else {
      dialoghi_.Messaggio(QStringLiteral("Codice errato!"), QStringLiteral("Attenzione!"));
    }
  });
  if (!valido) ui_->txtCodice->setFocus();
  return valido;
}

void frmClassificazione1999::cmdEsci_Click() {
  EsciClassificazione1999(stato_, dialoghi_, indiceClasse_, ui_->txtCodice->text());
  accept();
}

void frmClassificazione1999::done(int esito) {
  uscita_->Finisci();
  QDialog::done(esito);
}

void frmClassificazione1999::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

}  // namespace torvi
