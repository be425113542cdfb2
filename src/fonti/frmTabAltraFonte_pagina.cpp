#include "fonti/frmTabAltraFonte_pagina.h"

#include <QDialog>
#include <QKeyEvent>

#include "fonti/convenzioni.h"
#include "fonti/elenchi_fonte.h"
#include "fonti/voci_altra.h"
#include "fonti/voci_interna.h"
#include "shell/finestra_cerca_lista.h"
#include "shell/finestra_combo.h"
#include "shell/finestra_frecce.h"
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "shell/valori.h"
#include "ui_frmTabAltraFonte_pagina.h"

namespace torvi {
namespace {

constexpr int kComunitario = 1;
constexpr int kStraniero = 2;
constexpr int kCanonico = 3;

[[nodiscard]] bool HaSezione(int indice) { return indice <= kComunitario; }

[[nodiscard]] std::optional<QString> Selezionata(const QListWidget& lista) {
  const auto scelte = lista.selectedItems();
  return scelte.isEmpty() ? std::nullopt : std::optional<QString>(scelte.first()->text());
}

[[nodiscard]] QString Testata(int indice) {
  return QString::fromUtf16(SchedeAltra()[static_cast<std::size_t>(indice)]);
}

// Whether an event goes over the items of a closed combo.
[[nodiscard]] bool Sorvola(const QEvent& evento) {
  if (evento.type() == QEvent::Wheel) return true;
  const int tasto = static_cast<const QKeyEvent&>(evento).key();
  return tasto == Qt::Key_Up || tasto == Qt::Key_Down;
}

}  // namespace

frmTabAltraFonte_pagina::frmTabAltraFonte_pagina(StatoGlobale& stato, Dialoghi& dialoghi,
                                                 int indice, QWidget* padre)
    : QWidget(padre),
      ui_(std::make_unique<Ui::frmTabAltraFonte_pagina>()),
      stato_(stato),
      dialoghi_(dialoghi),
      indice_(indice) {
  ui_->setupUi(this);
  ui_->cmdSalva->setText(QStringLiteral("Salva &%1").arg(indice));
  PreparaListe();
  // Its place is kept only where a kind of this tab has it.
  for (QWidget* controllo :
       {static_cast<QWidget*>(ui_->FrameAltro), static_cast<QWidget*>(ui_->LabelLibero),
        static_cast<QWidget*>(ui_->txtLibero)}) {
    TieniIlPosto(*controllo);
  }
  MostraAltro(false);
  RiempiListaFonte({});
  PulisciTab();
  Collega();
}

frmTabAltraFonte_pagina::~frmTabAltraFonte_pagina() = default;

void frmTabAltraFonte_pagina::PreparaListe() {
  const Database& archivio = stato_.DbArchivio;
  ui_->ComboFonte->addItems(ComboFonteAltra(indice_));
  comboFonte_ = new ComboDiCodici(*ui_->ComboFonte, Testata(indice_));
  ui_->ComboRegione->addItems(Regioni());
  comboRegione_ = new ComboDiCodici(*ui_->ComboRegione, kRegione);
  ui_->estremi->Prepara(RipartizioniAltroDiritto(), RipartizioniAltroDiritto());
  if (indice_ == kCanonico) ui_->lstElenco1->addItems(VociElenco(archivio, ElencoInfo::Citta));
  if (HaSezione(indice_)) ui_->lstElenco2->addItems(VociSezione(archivio));
}

void frmTabAltraFonte_pagina::Collega() {
  CollegaComandi();
  CollegaCampi();
  CollegaCampoALista(*ui_->txtInfo1, *ui_->lstElenco1);
  CollegaCampoALista(*ui_->txtInfo2, *ui_->lstElenco2);
  for (QListWidget* lista : {ui_->lstFonte, ui_->lstElenco1, ui_->lstElenco2}) {
    new PrimaFreccia(*lista);
    new VoceEsatta(*lista);
  }
  for (QWidget* controllo :
       {static_cast<QWidget*>(ui_->ComboFonte), static_cast<QWidget*>(ui_->lstFonte)}) {
    controllo->installEventFilter(this);
  }
  connect(ui_->ComboFonte, &QComboBox::activated, this, &frmTabAltraFonte_pagina::SegnalaScelta);
  connect(ui_->ComboFonte, &QComboBox::currentIndexChanged, this,
          &frmTabAltraFonte_pagina::SegnalaScelta);
  connect(ui_->lstFonte, &QListWidget::itemClicked, this, &frmTabAltraFonte_pagina::lstFonte_Click);
}

void frmTabAltraFonte_pagina::CollegaComandi() {
  for (const auto& [pulsante, gestore] : std::initializer_list<std::pair<QPushButton*, Gestore>>{
           {ui_->cmdListaStati, &frmTabAltraFonte_pagina::cmdListaStati_Click},
           {ui_->cmdSalva, &frmTabAltraFonte_pagina::cmdSalva_Click},
           {ui_->cmdClear, &frmTabAltraFonte_pagina::cmdClear_Click},
           {ui_->cmdEsciSalva, &frmTabAltraFonte_pagina::cmdEsciSalva_Click},
           {ui_->cmdAbbandona, &frmTabAltraFonte_pagina::cmdAbbandona_Click},
           {ui_->cmdAid, &frmTabAltraFonte_pagina::cmdAid_Click}}) {
    connect(pulsante, &QPushButton::clicked, this,
            [this, gestore = gestore] { Esegui(dialoghi_, [&] { (this->*gestore)(); }); });
  }
}

// All that the citation is composed of.
void frmTabAltraFonte_pagina::CollegaCampi() {
  for (QLineEdit* campo : {ui_->txtInfo1, ui_->txtInfo2, ui_->txtLibero, ui_->txtStato}) {
    connect(campo, &QLineEdit::textChanged, this, &frmTabAltraFonte_pagina::Cambiato);
  }
  for (QCheckBox* scelta : {ui_->chkOrd, ui_->chkDecr}) {
    connect(scelta, &QCheckBox::toggled, this, &frmTabAltraFonte_pagina::Cambiato);
  }
  connect(ui_->ComboRegione, &QComboBox::currentTextChanged, this,
          &frmTabAltraFonte_pagina::Cambiato);
  connect(ui_->lstFonte, &QListWidget::itemSelectionChanged, this,
          &frmTabAltraFonte_pagina::Cambiato);
  connect(ui_->estremi, &FinestraEstremi::Cambiato, this, &frmTabAltraFonte_pagina::Cambiato);
}

ControlliFonte frmTabAltraFonte_pagina::Leggi() const {
  ControlliFonte controlli;
  controlli.indice = indice_;
  controlli.ComboFonte = ui_->ComboFonte->currentText();
  controlli.lstFonte = Selezionata(*ui_->lstFonte);
  ui_->estremi->Leggi(controlli);
  controlli.chkOrd = ui_->chkOrd->isChecked();
  controlli.chkDecr = ui_->chkDecr->isChecked();
  controlli.ComboRegione = ui_->ComboRegione->currentText();
  controlli.txtInfo1 = ui_->txtInfo1->text();
  controlli.txtInfo2 = ui_->txtInfo2->text();
  controlli.txtLibero = ui_->txtLibero->text();
  controlli.txtStato = ui_->txtStato->text();
  return controlli;
}

void frmTabAltraFonte_pagina::TornaAllaVoce() { ui_->ComboFonte->setFocus(); }

void frmTabAltraFonte_pagina::MettiTrattato(const QString& linea) {
  ui_->txtLibero->setText(linea);
  TornaAllaVoce();
  focusNextChild();
}

void frmTabAltraFonte_pagina::PulisciTab() {
  comboFonte_->Mostra(Testata(indice_));
  ui_->estremi->Pulisci();
  for (QCheckBox* scelta : {ui_->chkOrd, ui_->chkDecr}) scelta->setChecked(false);
  for (QLineEdit* campo : {ui_->txtInfo1, ui_->txtInfo2, ui_->txtLibero}) campo->clear();
  ui_->lstFonte->clear();
  ui_->estremi->Mostra(true, true);
  MostraStato(indice_ == kStraniero);
}

void frmTabAltraFonte_pagina::SegnalaScelta() {
  if (sceltaDovuta_) return;
  sceltaDovuta_ = true;
  if (uscitoConTab_) {
    ConcludiScelta();
  } else {
    QMetaObject::invokeMethod(this, &frmTabAltraFonte_pagina::ConcludiScelta, Qt::QueuedConnection);
  }
}

void frmTabAltraFonte_pagina::ConcludiScelta() {
  if (!sceltaDovuta_) return;
  sceltaDovuta_ = false;
  Esegui(dialoghi_, [this] { ComboFonte_Click(); });
  diPassaggio_ = uscitoConTab_ = false;
  Q_EMIT Cambiato();
}

void frmTabAltraFonte_pagina::Conferma() {
  comboFonte_->Conferma();
  comboRegione_->Conferma();
  ui_->estremi->Conferma();
  ConcludiScelta();
}

void frmTabAltraFonte_pagina::ComboFonte_Click() {
  trattatiDovuti_ = false;
  Q_EMIT Trattati(false);
  const VoceAltra* voce = TrovaVoceAltra(indice_, ui_->ComboFonte->currentText());
  if (voce == nullptr) return;
  MostraVoce(*voce);
  if (voce->atto != Atto::TestoLibero) return;
  trattatiDovuti_ = diPassaggio_;
  if (!diPassaggio_) Q_EMIT Trattati(true);
}

void frmTabAltraFonte_pagina::MostraVoce(const VoceAltra& voce) {
  ui_->estremi->Mostra(voce.estremi, voce.ripartizioni);
  if (indice_ == kCanonico) {
    const bool codice = QLatin1String(voce.codice) == QLatin1String("FCC");
    ui_->estremi->Etichette(codice ? QStringLiteral("Canone") : QStringLiteral("Articolo"),
                            codice ? QStringLiteral("Paragrafo") : QStringLiteral("Comma"));
  }
  ui_->txtLibero->setEnabled(voce.libero != Libero::Spento);
  ui_->txtLibero->setVisible(voce.libero != Libero::Spento);
  ui_->LabelLibero->setVisible(voce.libero == Libero::Acceso);
  if (voce.altro) MostraAltro(*voce.altro);
  MostraStato(indice_ == kStraniero);
  RiempiListaFonte(ListaFonteAltra(stato_.DbArchivio, voce));
}

// An operator who has left the kind by Tab is brought to the list that was not there a moment ago.
void frmTabAltraFonte_pagina::RiempiListaFonte(const QStringList& atti) {
  const bool accesa = !ui_->lstFonte->isEnabled() && !atti.isEmpty();
  ui_->lstFonte->clear();
  ui_->lstFonte->addItems(atti);
  ui_->lstFonte->setEnabled(!atti.isEmpty());
  if (accesa && uscitoConTab_) ui_->lstFonte->setFocus();
}

void frmTabAltraFonte_pagina::MostraAltro(bool visibile) {
  ui_->FrameAltro->setVisible(visibile);
  ui_->FrameRegione->setVisible(visibile && indice_ == kCanonico);
  const auto mostra = [](std::initializer_list<QWidget*> controlli, bool accesi) {
    for (QWidget* controllo : controlli) {
      controllo->setVisible(accesi);
      controllo->setEnabled(accesi);
    }
  };
  mostra({ui_->LabelInfo1, ui_->txtInfo1, ui_->lstElenco1}, visibile && indice_ == kCanonico);
  mostra({ui_->LabelInfo2, ui_->txtInfo2, ui_->lstElenco2}, visibile && HaSezione(indice_));
}

void frmTabAltraFonte_pagina::MostraStato(bool visibile) {
  for (QWidget* controllo :
       {static_cast<QWidget*>(ui_->LabelStato), static_cast<QWidget*>(ui_->txtStato),
        static_cast<QWidget*>(ui_->cmdListaStati)}) {
    controllo->setVisible(visibile);
    controllo->setEnabled(visibile);
  }
}

bool frmTabAltraFonte_pagina::ConvenzioneSelezionata() const {
  return indice_ == kComunitario && Selezionata(*ui_->lstFonte) == VoceConvenzione();
}

void frmTabAltraFonte_pagina::lstFonte_Click() {
  if (!ConvenzioneSelezionata()) return;
  Esegui(dialoghi_, [this] {
    const Convenzioni citate = ElencaConvenzioni(stato_.DbArchivio);
    stato_.ValoreLista = dialoghi_.ScegliDaLista(citate.linee);
    if (stato_.ValoreLista.isEmpty()) return;
    const Convenzione& scelta = ConvenzioneScelta(citate, stato_.ValoreLista);
    QString mese = scelta.mese;
    ui_->estremi->MettiData(scelta.giorno, NomeMese(mese), scelta.anno, scelta.numero);
    ui_->txtLibero->setText(scelta.altro);
  });
}

void frmTabAltraFonte_pagina::cmdListaStati_Click() {
  stato_.ValoreLista = dialoghi_.ScegliDaLista(ElencoStati(stato_.DbArchivio));
  if (!stato_.ValoreLista.isEmpty()) ui_->txtStato->setText(stato_.ValoreLista);
}

EsitoFonte frmTabAltraFonte_pagina::SalvaFonte() {
  Conferma();
  return SalvaFonteAltra(stato_, dialoghi_, Leggi());
}

void frmTabAltraFonte_pagina::cmdSalva_Click() { SalvaFonte(); }

void frmTabAltraFonte_pagina::cmdClear_Click() {
  SalvaFonte();
  PulisciTab();
  TornaAllaVoce();
}

void frmTabAltraFonte_pagina::cmdEsciSalva_Click() {
  if (SalvaFonte() == EsitoFonte::Composta) Q_EMIT Esce(QDialog::Accepted);
}

void frmTabAltraFonte_pagina::cmdAbbandona_Click() { Q_EMIT Esce(QDialog::Rejected); }

void frmTabAltraFonte_pagina::cmdAid_Click() {
  dialoghi_.Messaggio(TestoFormalismo(), TitoloFormalismo());
}

void frmTabAltraFonte_pagina::EventoInComboFonte(const QEvent& evento) {
  if (evento.type() == QEvent::KeyPress || evento.type() == QEvent::Wheel) {
    diPassaggio_ = Sorvola(evento);
    uscitoConTab_ = false;
  } else if (evento.type() == QEvent::FocusOut) {
    uscitoConTab_ = static_cast<const QFocusEvent&>(evento).reason() == Qt::TabFocusReason;
    if (uscitoConTab_) EsceConTab();
  } else if (evento.type() == QEvent::FocusIn) {
    uscitoConTab_ = false;
  }
}

void frmTabAltraFonte_pagina::EsceConTab() {
  ConcludiScelta();
  uscitoConTab_ = true;
  QLineEdit& campo = *ui_->ComboFonte->lineEdit();
  const QString voce = ui_->ComboFonte->itemText(ui_->ComboFonte->currentIndex());
  // Who types the kind that stands there chooses it again.
  const bool riscritta = campo.isModified() && !campo.text().isEmpty() &&
                         voce.contains(campo.text(), Qt::CaseInsensitive);
  campo.setModified(false);
  if (riscritta) comboFonte_->Conferma();
  if (riscritta || trattatiDovuti_) SegnalaScelta();
}

bool frmTabAltraFonte_pagina::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == ui_->ComboFonte) {
    EventoInComboFonte(*evento);
  } else if (evento->type() == QEvent::KeyPress && ConvenzioneSelezionata()) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    const bool spazio = tasto == Qt::Key_Space;
    if (spazio || tasto == Qt::Key_Return || tasto == Qt::Key_Enter) lstFonte_Click();
    return spazio;
  }
  return QWidget::eventFilter(oggetto, evento);
}

}  // namespace torvi
