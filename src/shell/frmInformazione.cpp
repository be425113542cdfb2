#include "shell/frmInformazione.h"

#include "shell/informazione.h"
#include "ui_frmInformazione.h"

namespace torvi {
namespace {

void Riempi(QComboBox& combo, const QStringList& voci, const QString& segnaposto) {
  combo.setPlaceholderText(segnaposto);
  combo.addItems(voci);
  combo.setCurrentIndex(-1);
}

QString TestoMostrato(const QComboBox& combo) {
  return combo.currentIndex() < 0 ? combo.placeholderText() : combo.currentText();
}

}  // namespace

frmInformazione::frmInformazione(Dialoghi& dialoghi, int annoCorrente, QWidget* padre)
    : QDialog(padre), ui_(std::make_unique<Ui::frmInformazione>()), dialoghi_(dialoghi) {
  ui_->setupUi(this);
  Riempi(*ui_->ComboCentro, VociCentro(), SegnapostoCentro());
  Riempi(*ui_->ComboAProd, VociAnno(annoCorrente), SegnapostoAnno());
  connect(ui_->cmdOk, &QPushButton::clicked, this, &frmInformazione::cmdOk_Click);
  connect(ui_->cmdAnnulla, &QPushButton::clicked, this, &frmInformazione::cmdAnnulla_Click);
}

frmInformazione::~frmInformazione() = default;

void frmInformazione::cmdOk_Click() {
  const CampiInformazione campi = {.consegna = ui_->txtConsegna->text(),
                                   .inizio = ui_->txtInizio->text(),
                                   .centro = TestoMostrato(*ui_->ComboCentro),
                                   .anno = TestoMostrato(*ui_->ComboAProd)};
  if (Completi(campi)) {
    InfoNuovoArchivio = Unisci(campi);
    accept();
    return;
  }
  dialoghi_.Messaggio(QStringLiteral("Informazioni incomplete!"), {}, Icona::Informazione);
  const Risposta risposta = dialoghi_.Domanda(
      QStringLiteral("Vuoi completare le informazioni (oppure uscire abbandonando l'operazione di "
                     "'Nuovo archivio')?"),
      QStringLiteral("Attenzione"), Pulsanti::SiNo);
  if (risposta == Risposta::No) cmdAnnulla_Click();
}

void frmInformazione::cmdAnnulla_Click() {
  InfoNuovoArchivio.clear();
  reject();
}

}  // namespace torvi
