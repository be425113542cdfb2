#include "fonti/finestra_estremi.h"

#include <algorithm>

#include "fonti/elenchi_fonte.h"
#include "shell/finestra_combo.h"
#include "shell/finestra_fuoco.h"
#include "shell/finestra_misure.h"
#include "ui_finestra_estremi.h"

namespace torvi {
namespace {

struct Casella {
  QLineEdit* Ui::FinestraEstremi::*campo;
  QString ControlliFonte::*valore;
  bool seleziona = false;  // the whole text when the focus comes
};

constexpr std::array kCaselle = {
    Casella{&Ui::FinestraEstremi::txtGG, &ControlliFonte::txtGG, true},
    Casella{&Ui::FinestraEstremi::txtAA, &ControlliFonte::txtAA, true},
    Casella{&Ui::FinestraEstremi::txtN, &ControlliFonte::txtN, true},
    Casella{&Ui::FinestraEstremi::txtArt, &ControlliFonte::txtArt, true},
    Casella{&Ui::FinestraEstremi::txtComma, &ControlliFonte::txtComma, true},
    Casella{&Ui::FinestraEstremi::txtLett, &ControlliFonte::txtLett},
    Casella{&Ui::FinestraEstremi::txtNumP, &ControlliFonte::txtNumP},
    Casella{&Ui::FinestraEstremi::txtAll, &ControlliFonte::txtAll}};

struct Scelta {
  QComboBox* Ui::FinestraEstremi::*campo;
  QString ControlliFonte::*valore;
  const QString& segnaposto;
};

const std::array kScelte = {
    Scelta{&Ui::FinestraEstremi::ComboMese, &ControlliFonte::ComboMese, kMese},
    Scelta{&Ui::FinestraEstremi::ComboRipA, &ControlliFonte::ComboRipA, kRipartizione},
    Scelta{&Ui::FinestraEstremi::ComboRipC, &ControlliFonte::ComboRipC, kRipartizione}};

}  // namespace

FinestraEstremi::FinestraEstremi(QWidget* genitore)
    : QWidget(genitore), ui_(std::make_unique<Ui::FinestraEstremi>()) {
  ui_->setupUi(this);
  for (std::size_t i = 0; i < kScelte.size(); ++i) {
    QComboBox& combo = *((*ui_).*kScelte.at(i).campo);
    combo_.at(i) = new ComboDiCodici(combo, kScelte.at(i).segnaposto,
                                     [this, i](const QString& testo) { return Ammesso(i, testo); });
    connect(&combo, &QComboBox::currentTextChanged, this, &FinestraEstremi::Cambiato);
  }
  for (const Casella& casella : kCaselle) {
    QLineEdit& campo = *((*ui_).*casella.campo);
    if (casella.seleziona) SelezionaConIlFuoco(campo);
    connect(&campo, &QLineEdit::textChanged, this, &FinestraEstremi::Cambiato);
  }
  for (QGroupBox* riquadro : {ui_->FrameEstremi, ui_->FrameRipartizioni}) {
    TieniIlPosto(*riquadro);
  }
}

FinestraEstremi::~FinestraEstremi() = default;

// An adverb may be any; a month has a name. What is listed for articles alone is not for
// paragraphs.
bool FinestraEstremi::Ammesso(std::size_t scelta, const QString& testo) const {
  if (kScelte.at(scelta).valore == &ControlliFonte::ComboMese) {
    return std::ranges::none_of(testo, [](QChar segno) { return segno.isDigit(); });
  }
  return ui_->ComboRipA->findText(testo, Qt::MatchFixedString) < 0;
}

void FinestraEstremi::Prepara(const QStringList& articoli, const QStringList& commi) {
  ui_->ComboRipA->addItems(articoli);
  ui_->ComboRipC->addItems(commi);
  ui_->ComboMese->addItem(kMese);
  ui_->ComboMese->addItems(NomiMesi());
  Pulisci();
}

void FinestraEstremi::Mostra(bool estremi, bool ripartizioni) {
  ui_->FrameEstremi->setVisible(estremi);
  ui_->FrameRipartizioni->setVisible(ripartizioni);
}

void FinestraEstremi::SoloRipartizioni() { TieniIlPosto(*ui_->FrameEstremi, false); }

void FinestraEstremi::EntraRipartizioni() { ui_->txtArt->setFocus(); }

void FinestraEstremi::Etichette(const QString& articolo, const QString& comma) {
  ui_->LabelArt->setText(articolo);
  ui_->LabelComma->setText(comma);
}

void FinestraEstremi::MettiData(const QString& giorno, const QString& mese, const QString& anno,
                                const QString& numero) {
  ui_->txtGG->setText(giorno);
  combo_.front()->Mostra(mese);
  ui_->txtAA->setText(anno);
  ui_->txtN->setText(numero);
}

void FinestraEstremi::Conferma() {
  for (ComboDiCodici* combo : combo_) combo->Conferma();
}

void FinestraEstremi::Leggi(ControlliFonte& controlli) const {
  for (const Casella& casella : kCaselle) {
    controlli.*casella.valore = ((*ui_).*casella.campo)->text();
  }
  for (const Scelta& scelta : kScelte) {
    controlli.*scelta.valore = ((*ui_).*scelta.campo)->currentText();
  }
}

void FinestraEstremi::Pulisci() {
  for (const Casella& casella : kCaselle) ((*ui_).*casella.campo)->clear();
  for (std::size_t i = 0; i < kScelte.size(); ++i) combo_.at(i)->Mostra(kScelte.at(i).segnaposto);
}

}  // namespace torvi
