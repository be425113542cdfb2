#include "fonti/frmTabInterna_pagina.h"

#include <QSignalBlocker>

#include "fonti/elenchi_fonte.h"
#include "shell/finestra_cerca_lista.h"
#include "shell/finestra_combo.h"
#include "shell/finestra_frecce.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_frmTabInterna_pagina.h"

namespace torvi {
namespace {

constexpr int kNormativa = 2;
constexpr int kGiurisprudenza = 3;

// On the other two pages the kinds are acts themselves and ask for the divisions alone.
constexpr VoceInterna kCodificazione{.indice = 0,
                                     .voce = nullptr,
                                     .liv2 = nullptr,
                                     .ripartizioni = true,
                                     .estremi = false,
                                     .altro = false,
                                     .regione = false,
                                     .info2 = false,
                                     .elenco = ElencoInfo::Nessuno,
                                     .info1 = nullptr,
                                     .info3 = nullptr};

void MostraSe(bool serve, std::initializer_list<QWidget*> controlli) {
  for (QWidget* controllo : controlli) {
    if (controllo == nullptr) continue;
    controllo->setEnabled(serve);
    controllo->setVisible(serve);
  }
}

// An emptied field makes its list look for nothing, which would choose a line.
void Svuota(QLineEdit& campo, QListWidget* lista) {
  campo.clear();
  if (lista == nullptr) return;
  lista->setCurrentRow(-1);
  lista->scrollToTop();
}

}  // namespace

frmTabInterna_pagina::frmTabInterna_pagina(const StatoGlobale& stato, Dialoghi& dialoghi,
                                           int scheda, QWidget* padre)
    : QWidget(padre),
      ui_(std::make_unique<Ui::frmTabInterna_pagina>()),
      stato_(stato),
      dialoghi_(dialoghi),
      scheda_(SchedeInterna()[static_cast<std::size_t>(scheda)]) {
  ui_->setupUi(this);
  info_ = {Info{ui_->LabelInfo1, ui_->txtInfo1, ui_->lstElenco1},
           Info{ui_->LabelInfo2, ui_->txtInfo2, ui_->lstElenco2},
           Info{ui_->LabelInfo3, ui_->txtInfo3, nullptr}};
  PreparaPosti();
  ui_->cmdSalva->setText(QStringLiteral("Salva &%1").arg(scheda));
  ui_->cmdCatalogoFonti->setVisible(scheda_.indice == kNormativa);
  PreparaListe();
  CollegaCambiamenti();
  CollegaComandi();
  for (QListWidget* lista : {ui_->lstFonte, ui_->lstElenco1, ui_->lstElenco2}) {
    new PrimaFreccia(*lista);
    new VoceEsatta(*lista);
  }
  Mostra({});
}

frmTabInterna_pagina::~frmTabInterna_pagina() = default;

QString frmTabInterna_pagina::Testata() const { return QString::fromUtf16(scheda_.titolo); }

void frmTabInterna_pagina::PreparaPosti() {
  // The other pages never list an act nor ask for anything but the divisions.
  if (scheda_.indice != kNormativa && scheda_.indice != kGiurisprudenza) {
    ui_->atti->hide();
    ui_->estremi->SoloRipartizioni();
    return;
  }
  for (QWidget* controllo : std::initializer_list<QWidget*>{
           ui_->LabelAtto, ui_->lstFonte, ui_->FrameRegione, ui_->FrameAltro, ui_->LabelInfo1,
           ui_->txtInfo1, ui_->lstElenco1, ui_->LabelInfo2, ui_->txtInfo2, ui_->lstElenco2,
           ui_->LabelInfo3, ui_->txtInfo3}) {
    TieniIlPosto(*controllo);
  }
}

void frmTabInterna_pagina::PreparaListe() {
  ui_->ComboFonte->addItem(Testata());
  ui_->ComboFonte->addItems(ComboFonteInterna(stato_.DbArchivio, scheda_.indice));
  fonte_ = new ComboDiCodici(*ui_->ComboFonte, Testata());
  ui_->ComboRegione->addItem(kRegione);
  ui_->ComboRegione->addItems(Regioni());
  regione_ = new ComboDiCodici(*ui_->ComboRegione, kRegione);
  const QStringList primo(kRipartizione);
  ui_->estremi->Prepara(primo + RipartizioniArticolo(), primo + RipartizioniComma());
  if (scheda_.indice != kGiurisprudenza) return;
  ui_->lstElenco1->addItems(VociElenco(stato_.DbArchivio, ElencoInfo::Citta));
  ui_->lstElenco2->addItems(VociSezione(stato_.DbArchivio));
}

void frmTabInterna_pagina::CollegaCambiamenti() {
  for (const Info& info : info_) {
    if (info.lista != nullptr) CollegaCampoALista(*info.campo, *info.lista);
    connect(info.campo, &QLineEdit::textChanged, this, &frmTabInterna_pagina::Cambiato);
  }
  for (const QComboBox* combo : {ui_->ComboFonte, ui_->ComboRegione}) {
    connect(combo, &QComboBox::currentTextChanged, this, &frmTabInterna_pagina::Cambiato);
  }
  for (const QCheckBox* casella : {ui_->chkOrd, ui_->chkDecr}) {
    connect(casella, &QCheckBox::toggled, this, &frmTabInterna_pagina::Cambiato);
  }
  connect(ui_->lstFonte, &QListWidget::itemSelectionChanged, this, &frmTabInterna_pagina::Cambiato);
  connect(ui_->estremi, &FinestraEstremi::Cambiato, this, &frmTabInterna_pagina::Cambiato);
  connect(ui_->ComboFonte, &QComboBox::currentIndexChanged, this,
          &frmTabInterna_pagina::ComboFonte_Click);
}

void frmTabInterna_pagina::CollegaComandi() {
  using Segnale = void (frmTabInterna_pagina::*)();
  for (const auto& [pulsante, segnale] :
       {std::pair<QPushButton*, Segnale>{ui_->cmdSalva, &frmTabInterna_pagina::Salva},
        {ui_->cmdClear, &frmTabInterna_pagina::SalvaEPulisci},
        {ui_->cmdEsciSalva, &frmTabInterna_pagina::EsciESalva},
        {ui_->cmdAbbandona, &frmTabInterna_pagina::Abbandona},
        {ui_->cmdCatalogoFonti, &frmTabInterna_pagina::ConsultaCatalogo}}) {
    connect(pulsante, &QPushButton::clicked, this, segnale);
  }
}

void frmTabInterna_pagina::ComboFonte_Click() {
  const QString voce = ui_->ComboFonte->currentText();
  if (voce == Testata()) return;
  const VoceInterna* trovata = TrovaVoceInterna(scheda_.indice, voce);
  Esegui(dialoghi_, [&] { Mostra(trovata == nullptr ? kCodificazione : *trovata); });
  Q_EMIT Cambiato();
}

void frmTabInterna_pagina::Mostra(const VoceInterna& voce) {
  ui_->estremi->Mostra(voce.estremi, voce.ripartizioni);
  ui_->FrameAltro->setVisible(voce.altro);
  ui_->FrameRegione->setVisible(voce.regione);
  MostraSe(voce.liv2 != nullptr, {ui_->LabelAtto, ui_->lstFonte});
  MostraInfo(0, voce.info1);
  MostraInfo(1, voce.info2 ? u"Sezione" : nullptr);
  MostraInfo(2, voce.info3);
  ui_->lstFonte->clear();
  if (voce.liv2 != nullptr) {
    ui_->lstFonte->addItems(ListaFonteInterna(stato_.DbArchivio, QLatin1String(scheda_.liv1),
                                              QLatin1String(voce.liv2)));
  }
  // The cities are many and were loaded once.
  if (voce.info1 == nullptr || voce.elenco == ElencoInfo::Citta) return;
  ui_->lstElenco1->clear();
  ui_->lstElenco1->addItems(VociElenco(stato_.DbArchivio, voce.elenco));
}

void frmTabInterna_pagina::MostraInfo(int numero, const char16_t* titolo) {
  const Info& info = info_.at(static_cast<std::size_t>(numero));
  MostraSe(titolo != nullptr, {info.etichetta, info.campo, info.lista});
  if (titolo == nullptr) return;
  info.etichetta->setText(QString::fromUtf16(titolo));
  Svuota(*info.campo, info.lista);
}

ControlliFonte frmTabInterna_pagina::Leggi() const {
  ControlliFonte controlli;
  controlli.indice = scheda_.indice;
  controlli.ComboFonte = ui_->ComboFonte->currentText();
  const auto scelti = ui_->lstFonte->selectedItems();
  if (!scelti.isEmpty()) controlli.lstFonte = scelti.first()->text();
  ui_->estremi->Leggi(controlli);
  controlli.chkOrd = ui_->chkOrd->isChecked();
  controlli.chkDecr = ui_->chkDecr->isChecked();
  controlli.ComboRegione = ui_->ComboRegione->currentText();
  controlli.txtInfo1 = ui_->txtInfo1->text();
  controlli.txtInfo2 = ui_->txtInfo2->text();
  controlli.txtInfo3 = ui_->txtInfo3->text();
  return controlli;
}

void frmTabInterna_pagina::Conferma() {
  fonte_->Conferma();
  regione_->Conferma();
  ui_->estremi->Conferma();
}

void frmTabInterna_pagina::Pulisci() {
  fonte_->Mostra(Testata());
  regione_->Mostra(kRegione);
  ui_->estremi->Pulisci();
  ui_->chkDecr->setChecked(false);
  ui_->chkOrd->setChecked(false);
  ui_->lstFonte->clear();
  for (const Info& info : info_) {
    Svuota(*info.campo, info.lista);
    if (info.lista != nullptr && scheda_.indice != kGiurisprudenza) info.lista->clear();
  }
  Q_EMIT Cambiato();
}

void frmTabInterna_pagina::Entra() {
  ui_->ComboFonte->setFocus();
  ui_->ComboFonte->lineEdit()->selectAll();
}

void frmTabInterna_pagina::MettiAtto(const AttoTrovato& atto) {
  ui_->estremi->MettiData(atto.txtGG, atto.ComboMese, atto.txtAA, atto.txtN);
  {
    // The kind counts as chosen anew also where it stood there before.
    const QSignalBlocker muta(ui_->ComboFonte);
    fonte_->Mostra(atto.ComboFonte);
  }
  ComboFonte_Click();
  ui_->estremi->EntraRipartizioni();
  if (!atto.lstFonte) return;
  const auto atti = ui_->lstFonte->findItems(*atto.lstFonte, Qt::MatchExactly);
  if (!atti.isEmpty()) ui_->lstFonte->setCurrentItem(atti.first());
}

}  // namespace torvi
