#include "shell/MDIEditorTorvi.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QStatusBar>

#include "classificazione/caricatori.h"
#include "document/frmRicerca.h"
#include "document/frmSceltaDoc.h"
#include "export/errori_consegna.h"
#include "export/esporta_ascii.h"
#include "report/consistenza.h"
#include "report/controllo_uso.h"
#include "report/estrazioni.h"
#include "report/frmFileSigle.h"
#include "report/lotto.h"
#include "report/prospetto.h"
#include "report/stampa_html.h"
#include "report/stampa_rtf.h"
#include "shell/archivio_comandi.h"
#include "shell/finestra_fuoco.h"
#include "shell/finestra_misure.h"
#include "shell/finestra_mnemonici.h"
#include "shell/guardia.h"
#include "ui_MDIEditorTorvi.h"

namespace torvi {

namespace {

using Menu = Ui::MDIEditorTorvi;
using Finestra = MDIEditorTorvi;

}  // namespace

const MDIEditorTorvi::VoceMenu MDIEditorTorvi::kVociMenu[] = {
    {&Menu::mnuFileApri, &Finestra::mnuFileApri_Click},
    {&Menu::mnuFileChiudi, &Finestra::mnuFileChiudi_Click},
    {&Menu::mnuFileNuovo, &Finestra::mnuFileNuovo_Click},
    {&Menu::mnuFileEsci, &Finestra::mnuFileEsci_Click},
    {&Menu::mnuAggiornamentoNuovo, &Finestra::mnuAggiornamentoNuovo_Click},
    {&Menu::mnuAggiornamentoEdita, &Finestra::mnuAggiornamentoEdita_Click},
    {&Menu::mnuAggiornamentoCancella, &Finestra::mnuAggiornamentoCancella_Click},
    {&Menu::mnuAggiornamentoRicerca, &Finestra::mnuAggiornamentoRicerca_Click},
    {&Menu::mnuUtilitaHTML, &Finestra::mnuUtilitaHTML_Click},
    {&Menu::mnuUtilitaHTML_HUDOC, &Finestra::mnuUtilitaHTML_HUDOC_Click},
    {&Menu::mnuStampaCompleta, &Finestra::mnuStampaCompleta_Click},
    {&Menu::mnuStampaSoloTesti, &Finestra::mnuStampaSoloTesti_Click},
    {&Menu::mnuStampaProspetto, &Finestra::mnuStampaProspetto_Click},
    {&Menu::mnuStampaConsistenza, &Finestra::mnuStampaConsistenza_Click},
    {&Menu::mnuFormatoASCIIStorico, &Finestra::mnuFormatoASCIIStorico_Click},
    {&Menu::mnuFormatoASCIIIsis, &Finestra::mnuFormatoASCIIIsis_Click},
    {&Menu::mnuFormatoASCIICassazione, &Finestra::mnuFormatoASCIICassazione_Click},
    {&Menu::mnuFileNotaDocumenti, &Finestra::mnuFileNotaDocumenti_Click},
    {&Menu::mnuFileNuovi, &Finestra::mnuFileNuovi_Click},
    {&Menu::mnuFileErroriGenerici, &Finestra::mnuFileErroriGenerici_Click},
    {&Menu::mnuFileErroriClasse, &Finestra::mnuFileErroriClasse_Click},
    {&Menu::mnuFileErroriFonti, &Finestra::mnuFileErroriFonti_Click},
    {&Menu::mnuCaricaTabLegami, &Finestra::mnuCaricaTabLegami_Click},
    {&Menu::mnuCaricaTabDescrittori, &Finestra::mnuCaricaTabDescrittori_Click},
    {&Menu::mnuCaricaTabDescrittoriAsteriscati,
     &Finestra::mnuCaricaTabDescrittoriAsteriscati_Click},
    {&Menu::mnuCaricaTabSistematici, &Finestra::mnuCaricaTabSistematici_Click},
    {&Menu::mnuCatalogoNorme, &Finestra::mnuCatalogoNorme_Click},
    {&Menu::mnuUtilitaControllo, &Finestra::mnuUtilitaControllo_Click},
    {&Menu::mnuUtilitaAggiornamentoStorico, &Finestra::mnuUtilitaAggiornamentoStorico_Click},
    {&Menu::mnuUtilitaAggiornamentoISIS, &Finestra::mnuUtilitaAggiornamentoISIS_Click},
    {&Menu::mnuUtilitaAggiornamentoCassazione, &Finestra::mnuUtilitaAggiornamentoCassazione_Click},
    {&Menu::mnuUtilitaAggiornamentoNote, &Finestra::mnuUtilitaAggiornamentoNote_Click},
    {&Menu::mnuUtilitaAggiornamentoFileNuovi, &Finestra::mnuUtilitaAggiornamentoFileNuovi_Click},
    {&Menu::mnuUtilitaAggiornamentoCelex, &Finestra::mnuUtilitaAggiornamentoCelex_Click},
    {&Menu::mnuUtilitaAggiornamentoHUDOC, &Finestra::mnuUtilitaAggiornamentoHUDOC_Click},
    {&Menu::mnuUtilitaAggiornamentoConteggioDocumenti,
     &Finestra::mnuUtilitaAggiornamentoConteggioDocumenti_Click},
    {&Menu::mnuUtilitaAggiornamentoModificaLista,
     &Finestra::mnuUtilitaAggiornamentoModificaLista_Click},
};

MDIEditorTorvi::MDIEditorTorvi(StatoGlobale& stato, QWidget* padre)
    : QMainWindow(padre),
      ui_(std::make_unique<Ui::MDIEditorTorvi>()),
      stato_(stato),
      dialoghi_(*this),
      dizionari_(stato.CartellaApplicazione),
      statoDocumento_(new QLabel(this)) {
  ui_->setupUi(this);
  for (QAction* separatore : {ui_->mnuSep, ui_->mnuStampaSep1, ui_->mnuStampaSep2,
                              ui_->mnuUtilitaSep1, ui_->mnuUtilitaSep2, ui_->mnuUtilitaSep3}) {
    separatore->setSeparator(true);
  }
  for (const VoceMenu& voce : kVociMenu) Collega(voce);
  // "Catalogo norme", which does nothing, has the same letter.
  new MnemonicoDiVoce(*ui_->mnuAggiornamento, *ui_->mnuAggiornamentoCancella);
  new MnemoniciDellaBarra(*ui_->menubar);
  new FuocoAlRitorno(*this);
  statoDocumento_->setObjectName(QStringLiteral("statoDocumento"));
  statoDocumento_->setContentsMargins(0, 0, 8, 0);
  statusBar()->addPermanentWidget(statoDocumento_);
  AdattaAlloSchermo(*this);
  ImpostaFase(FaseMenu::NessunArchivio);
}

MDIEditorTorvi::~MDIEditorTorvi() = default;

// Every command runs under the guard.
void MDIEditorTorvi::Collega(const VoceMenu& voce) {
  connect(ui_.get()->*voce.azione, &QAction::triggered, this,
          [this, gestore = voce.gestore] { Esegui(dialoghi_, [&] { (this->*gestore)(); }); });
}

void MDIEditorTorvi::ImpostaFase(FaseMenu fase) {
  for (const StatoMenu& stato : StatiMenu()) {
    const bool abilitato = stato.abilitato.at(static_cast<std::size_t>(fase));
    const QString nome = QLatin1String(stato.controllo);
    if (auto* menu = findChild<QMenu*>(nome)) menu->setEnabled(abilitato);
    if (auto* voce = findChild<QAction*>(nome)) voce->setEnabled(abilitato);
  }
  // A document on screen keeps its lock, whatever becomes of the archive meanwhile.
  if (documento_) AbilitaMenu(false);
}

void MDIEditorTorvi::closeEvent(QCloseEvent* evento) {
  bool esce = false;
  Esegui(dialoghi_, [&] { esce = ComandoEsci(stato_, dialoghi_); });
  evento->setAccepted(esce);
}

void MDIEditorTorvi::mnuFileApri_Click() {
  if (!ComandoApri(stato_, dialoghi_)) return;
  setWindowTitle(TitoloArchivio(stato_.PathArchivio));
  ImpostaFase(FaseMenu::ArchivioAperto);
}

// The caption keeps the name of the closed archive.
void MDIEditorTorvi::mnuFileChiudi_Click() {
  // Also where there is nothing to close, as after a batch: the menus must let another be opened.
  const auto fase = qScopeGuard([this] { ImpostaFase(FaseMenu::NessunArchivio); });
  for (auto* elenco : findChildren<frmSceltaDoc*>()) elenco->close();
  ComandoChiudi(stato_);
}

void MDIEditorTorvi::mnuFileNuovo_Click() {
  if (ComandoNuovo(stato_, dialoghi_)) ImpostaFase(FaseMenu::DopoNuovo);
}

void MDIEditorTorvi::mnuFileEsci_Click() { close(); }

void MDIEditorTorvi::MostraDocumento() {
  if (documento_) {
    ui_->centralwidget->setActiveSubWindow(
        qobject_cast<QMdiSubWindow*>(documento_->parentWidget()));
    return;
  }
  AbilitaMenu(false);
  documento_ = new frmDocumento(stato_, dialoghi_, dizionari_);
  documento_->setAttribute(Qt::WA_DeleteOnClose);
  QMdiSubWindow* finestra = ui_->centralwidget->addSubWindow(documento_);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  connect(documento_, &frmDocumento::StatoCambiato, statoDocumento_, &QLabel::setText);
  connect(documento_, &frmDocumento::Scaricata, this, &MDIEditorTorvi::DocumentoScaricato);
  statoDocumento_->setText(documento_->Stato());
  finestra->showMaximized();
}

// The menus are enabled whatever became of the archive meanwhile.
void MDIEditorTorvi::DocumentoScaricato() {
  AbilitaMenu(true);
  statoDocumento_->clear();
  documento_.clear();
}

void MDIEditorTorvi::AbilitaMenu(bool abilitati) {
  for (QMenu* menu : {ui_->mnuAggiornamento, ui_->mnuStampa, ui_->mnuEsporta, ui_->mnuUtilita}) {
    menu->setEnabled(abilitati);
  }
}

void MDIEditorTorvi::mnuAggiornamentoNuovo_Click() {
  stato_.DocumentoNuovo = true;
  stato_.RigheResponsabilita.clear();
  stato_.RigheClasse.clear();
  stato_.RigheFonte.clear();
  MostraDocumento();
}

void MDIEditorTorvi::mnuAggiornamentoEdita_Click() {
  if (frmSceltaDoc::ChiediDocumento(stato_, dialoghi_, this)) MostraDocumento();
}

void MDIEditorTorvi::mnuAggiornamentoCancella_Click() {
  frmSceltaDoc::ApriCancellazione(stato_, dialoghi_, this);
}

void MDIEditorTorvi::mnuAggiornamentoRicerca_Click() {
  frmRicerca(stato_, dialoghi_, this).exec();
  if (!stato_.SqlRicerca.isEmpty() && stato_.ModoRicerca) MostraDocumento();
}

void MDIEditorTorvi::mnuUtilitaHTML_Click() { StampaHTMLCelex(stato_, dialoghi_); }

void MDIEditorTorvi::mnuUtilitaHTML_HUDOC_Click() { StampaHTMLHudoc(stato_, dialoghi_); }

void MDIEditorTorvi::mnuStampaCompleta_Click() { StampaRTF(stato_, dialoghi_, true, false); }

void MDIEditorTorvi::mnuStampaSoloTesti_Click() { ComandoStampaSoloTesti(stato_, dialoghi_); }

void MDIEditorTorvi::mnuStampaProspetto_Click() { ComandoStampaProspetto(stato_, dialoghi_); }

void MDIEditorTorvi::mnuStampaConsistenza_Click() { StampaConsistenza(stato_, dialoghi_); }

void MDIEditorTorvi::mnuFormatoASCIIStorico_Click() {
  EsportaAscii(stato_, dialoghi_, kEsportaStorico);
}

void MDIEditorTorvi::mnuFormatoASCIIIsis_Click() { EsportaAscii(stato_, dialoghi_, kEsportaIsis); }

void MDIEditorTorvi::mnuFormatoASCIICassazione_Click() {
  EsportaAscii(stato_, dialoghi_, kEsportaCassazione);
}

void MDIEditorTorvi::mnuFileNotaDocumenti_Click() { EstraiNote(stato_, dialoghi_); }

void MDIEditorTorvi::mnuFileNuovi_Click() { EstraiNuovi(stato_, dialoghi_); }

void MDIEditorTorvi::mnuFileErroriGenerici_Click() {
  VisualizzaErrori(stato_, dialoghi_, kErroriGenerici);
}

void MDIEditorTorvi::mnuFileErroriClasse_Click() {
  VisualizzaErrori(stato_, dialoghi_, kErroriClasse);
}

void MDIEditorTorvi::mnuFileErroriFonti_Click() {
  VisualizzaErrori(stato_, dialoghi_, kErroriFonti);
}

void MDIEditorTorvi::mnuCaricaTabLegami_Click() { CaricaTabLegami(stato_, dialoghi_); }

void MDIEditorTorvi::mnuCaricaTabDescrittori_Click() { CaricaTabDescrittori(stato_, dialoghi_); }

void MDIEditorTorvi::mnuCaricaTabDescrittoriAsteriscati_Click() {
  CaricaTabDescrittoriAsteriscati(stato_, dialoghi_);
}

void MDIEditorTorvi::mnuCaricaTabSistematici_Click() { CaricaTabSistematici(stato_, dialoghi_); }

void MDIEditorTorvi::mnuCatalogoNorme_Click() { CaricaTabNorme(stato_, dialoghi_); }

void MDIEditorTorvi::mnuUtilitaControllo_Click() { ControllaUso(stato_, dialoghi_); }

void MDIEditorTorvi::mnuUtilitaAggiornamentoStorico_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Storico);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoISIS_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Isis);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoCassazione_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Cassazione);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoNote_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Note);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoFileNuovi_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Nuovi);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoCelex_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Celex);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoHUDOC_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Hudoc);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoConteggioDocumenti_Click() {
  EseguiLotto(stato_, dialoghi_, Lotto::Conteggio);
}

void MDIEditorTorvi::mnuUtilitaAggiornamentoModificaLista_Click() {
  frmFileSigle(stato_, dialoghi_, this).exec();
}

}  // namespace torvi
