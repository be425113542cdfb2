#include "document/frmDocumento.h"

#include <QCloseEvent>
#include <QMdiSubWindow>

#include "document/carica.h"
#include "document/frmHelpTastiFunzione.h"
#include "shell/finestra_fuoco.h"
#include "shell/finestra_icone.h"
#include "shell/finestra_scorrevole.h"
#include "shell/guardia.h"
#include "ui_frmDocumento.h"

namespace torvi {

frmDocumento::frmDocumento(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
                           QWidget* padre)
    : QWidget(padre),
      ui_(std::make_unique<Ui::frmDocumento>()),
      stato_(stato),
      dialoghi_(dialoghi),
      dizionari_(dizionari),
      documento_(stato, dialoghi) {
  ui_->setupUi(this);
  RendiScorrevole(*this);
  CollegaCampi();
  CollegaPulsanti();
  CaricaForma(documento_);
  ui_->cmdSalva->setVisible(documento_.comandiVisibili);
  ui_->cmdDuplica->setVisible(documento_.comandiVisibili);
  ui_->txtID->setFocus();
  MostraCampi();
}

frmDocumento::~frmDocumento() = default;

void frmDocumento::CollegaPulsanti() {
  Collega(*ui_->cmdSalva, &frmDocumento::cmdSalva_Click);
  Collega(*ui_->cmdEsci, &frmDocumento::cmdEsci_Click);
  Collega(*ui_->cmdAvanti, &frmDocumento::cmdAvanti_Click, "avanti");
  Collega(*ui_->cmdIndietro, &frmDocumento::cmdIndietro_Click, "indietro");
  Collega(*ui_->cmdNew, &frmDocumento::cmdNew_Click, "nuovodoc");
  Collega(*ui_->cmdDuplica, &frmDocumento::cmdDuplica_Click, "duplica");
  Collega(*ui_->cmdResponsabilitaN, &frmDocumento::cmdResponsabilitaN_Click, "nuovo");
  Collega(*ui_->cmdResponsabilitaM, &frmDocumento::cmdResponsabilitaM_Click, "modifica");
  Collega(*ui_->cmdResponsabilitaD, &frmDocumento::cmdResponsabilitaD_Click, "elimina");
  Collega(*ui_->cmdClasseN, &frmDocumento::cmdClasseN_Click, "nuovo");
  Collega(*ui_->cmdClasseM, &frmDocumento::cmdClasseM_Click, "modifica");
  Collega(*ui_->cmdClasseD, &frmDocumento::cmdClasseD_Click, "elimina");
  Collega(*ui_->cmdFonteN, &frmDocumento::cmdFonteN_Click, "nuovo");
  Collega(*ui_->cmdFonteM, &frmDocumento::cmdFonteM_Click, "modifica");
  Collega(*ui_->cmdFonteD, &frmDocumento::cmdFonteD_Click, "elimina");
  Collega(*ui_->cmdFonteT, &frmDocumento::cmdFonteT_Click, "nota");
  Collega(*ui_->cmdRiassunto, &frmDocumento::cmdRiassunto_Click);
  Collega(*ui_->cmdSommario, &frmDocumento::cmdSommario_Click);
  Collega(*ui_->cmdInTemaDi, &frmDocumento::cmdInTemaDi_Click);
  Collega(*ui_->cmdEnglishAbstract, &frmDocumento::cmdEnglishAbstract_Click);
  Collega(*ui_->cmdTraduzione, &frmDocumento::cmdTraduzione_Click);
  Collega(*ui_->cmdNota, &frmDocumento::cmdNota_Click);
  Collega(*ui_->cmdNotaDoc, &frmDocumento::cmdNotaDoc_Click);
  Collega(*ui_->cmdCancellaNotaCompilatore, &frmDocumento::cmdCancellaNotaCompilatore_Click);
  // What is abandoned needs no check of the field that is left.
  ui_->cmdAbbandona->installEventFilter(this);
  connect(ui_->cmdAbbandona, &QPushButton::clicked, this,
          [this] { Corri(&frmDocumento::cmdAbbandona_Click); });
}

void frmDocumento::Collega(QPushButton& pulsante, Gestore gestore, const char* icona) {
  pulsante.installEventFilter(this);
  if (icona != nullptr) pulsante.setIcon(IconaDi(QLatin1String(icona)));
  connect(&pulsante, &QPushButton::clicked, this, [this, gestore] {
    if (uscita_->Conferma()) Corri(gestore);
  });
}

void frmDocumento::Corri(Gestore gestore) {
  if (!documento_.guasto.isEmpty() && !SenzaDocumento(gestore)) {
    AvvertiNonCaricato(documento_);
    return;
  }
  for (ComboDiCodici* combo : combo_) combo->Conferma();
  LeggiCampi();
  Esegui(dialoghi_, [this, gestore] { (this->*gestore)(); });
  if (!uscendo_) MostraCampi();
}

// What a form whose document could not be loaded still does.
bool frmDocumento::SenzaDocumento(Gestore gestore) {
  for (const Gestore uno : {&frmDocumento::frmHelp_Show, &frmDocumento::cmdAbbandona_Click,
                            &frmDocumento::cmdAvanti_Click, &frmDocumento::cmdIndietro_Click,
                            &frmDocumento::cmdNew_Click}) {
    if (uno == gestore) return true;
  }
  return false;
}

struct frmDocumento::Tasto {
  int tasto;
  Gestore gestore;
  bool controlla = true;  // the field that is left, before the command
};

// Bare keys reach their command directly: also that of a hidden button, and without leaving the
// field, whose check runs first all the same.
bool frmDocumento::TastoFunzione(const QKeyEvent& tasto) {
  static constexpr Tasto kTasti[] = {
      {Qt::Key_F1, &frmDocumento::frmHelp_Show, false},
      {Qt::Key_F2, &frmDocumento::cmdDuplica_Click},
      {Qt::Key_F3, &frmDocumento::cmdAbbandona_Click, false},
      {Qt::Key_F4, &frmDocumento::cmdSalva_Click},
      {Qt::Key_F5, &frmDocumento::cmdIndietro_Click},
      {Qt::Key_F6, &frmDocumento::cmdAvanti_Click},
      {Qt::Key_F7, &frmDocumento::cmdResponsabilitaN_Click},
      {Qt::Key_F8, &frmDocumento::cmdClasseN_Click},
      {Qt::Key_F9, &frmDocumento::cmdFonteN_Click},
      {Qt::Key_F10, &frmDocumento::cmdRiassunto_Click},
      {Qt::Key_F11, &frmDocumento::cmdSommario_Click},
      {Qt::Key_F12, &frmDocumento::cmdEsci_Click},
  };
  if ((tasto.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  for (const Tasto& voce : kTasti) {
    if (voce.tasto != tasto.key()) continue;
    if (!voce.controlla || uscita_->ConfermaTasto()) Corri(voce.gestore);
    return true;
  }
  return false;
}

bool frmDocumento::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress) {
    if (TastoFunzione(*static_cast<QKeyEvent*>(evento))) return true;
  } else if (evento->type() == QEvent::Shortcut) {
    // A disabled menu with the same letter would make it only take the focus.
    if (auto* pulsante = qobject_cast<QPushButton*>(oggetto)) {
      pulsante->click();
      return true;
    }
  } else if (evento->type() == QEvent::FocusIn) {
    const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
    if (CambiaControllo(motivo)) Entra(oggetto, motivo);
  }
  return QWidget::eventFilter(oggetto, evento);
}

QString frmDocumento::Stato() const {
  return DescriviStato(documento_, salvato_ && Contenuto(documento_) != *salvato_);
}

void frmDocumento::AggiornaStato() {
  if (mostra_) return;
  LeggiCampi();
  Q_EMIT StatoCambiato(Stato());
}

void frmDocumento::Scarica() {
  uscendo_ = true;
  auto* finestra = qobject_cast<QMdiSubWindow*>(parentWidget());
  if (finestra != nullptr) {
    finestra->close();
  } else {
    close();
  }
}

// The close box asks before it drops what was typed; the commands of the form do not.
void frmDocumento::closeEvent(QCloseEvent* evento) {
  LeggiCampi();
  const bool modificato = salvato_ && Contenuto(documento_) != *salvato_;
  if (!uscendo_ && modificato &&
      dialoghi_.Domanda(QStringLiteral("Confermi l'uscita ?"), {}, Pulsanti::OkAnnulla) !=
          Risposta::Ok) {
    evento->ignore();
    return;
  }
  uscita_->Finisci();
  evento->accept();
  Q_EMIT Scaricata();
}

void frmDocumento::frmHelp_Show() { frmHelpTastiFunzione(this).exec(); }

void frmDocumento::cmdSalva_Click() {
  if (ComandoSalva(documento_)) salvato_.reset();
}

void frmDocumento::cmdEsci_Click() {
  if (ComandoEsci(documento_)) Scarica();
}

void frmDocumento::cmdAbbandona_Click() {
  ComandoAbbandona(documento_);
  Scarica();
}

void frmDocumento::cmdAvanti_Click() {
  ComandoSposta(documento_, Verso::Avanti);
  salvato_.reset();
}

void frmDocumento::cmdIndietro_Click() {
  ComandoSposta(documento_, Verso::Indietro);
  salvato_.reset();
}

void frmDocumento::cmdNew_Click() {
  ComandoNew(documento_);
  salvato_.reset();
}

void frmDocumento::cmdDuplica_Click() {
  if (ComandoDuplica(documento_)) salvato_.reset();
}

}  // namespace torvi
