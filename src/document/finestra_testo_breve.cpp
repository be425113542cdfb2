#include "document/finestra_testo_breve.h"

#include "shell/finestra_invio.h"
#include "shell/finestra_misure.h"
#include "shell/finestra_testo.h"
#include "shell/guardia.h"

namespace torvi {

FinestraTestoBreve::FinestraTestoBreve(StatoGlobale& stato, Dialoghi& dialoghi, const QString& nome,
                                       QWidget* padre)
    : QDialog(padre), stato_(stato), dialoghi_(dialoghi), breve_(TrovaTestoBreve(nome)) {}

void FinestraTestoBreve::Prepara(QPlainTextEdit& controllo, const QPushButton& cmdEsci,
                                 const QPushButton& cmdAbbandona, qint64 numeroDocumento) {
  testo_ = &controllo;
  MostraTesto(controllo, CaricaTestoBreve(stato_, breve_, numeroDocumento));
  AdattaAlloSchermo(*this);
  connect(&cmdEsci, &QPushButton::clicked, this, [this, &controllo] {
    Esegui(dialoghi_, [this, &controllo] { cmdEsci_Click(controllo); });
  });
  connect(&cmdAbbandona, &QPushButton::clicked, this, [this] { done(Rejected); });
}

void FinestraTestoBreve::reject() {
  if (testo_ == nullptr || LasciaTesto(*testo_, dialoghi_)) QDialog::reject();
}

void FinestraTestoBreve::keyPressEvent(QKeyEvent* evento) {
  if (!InvioAvanti(*this, *evento)) QDialog::keyPressEvent(evento);
}

void FinestraTestoBreve::cmdEsci_Click(const QPlainTextEdit& controllo) {
  EsciTestoBreve(stato_, breve_, TestoMostrato(controllo));
  accept();
}

}  // namespace torvi
