#include "shell/MDIEditorTorvi.h"

#include <QCloseEvent>
#include <QMdiSubWindow>

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
#include "shell/finestra_misure.h"
#include "shell/guardia.h"
#include "ui_MDIEditorTorvi.h"

namespace torvi {

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
  Collega(ui_->mnuFileApri, &MDIEditorTorvi::mnuFileApri_Click);
  Collega(ui_->mnuFileChiudi, &MDIEditorTorvi::mnuFileChiudi_Click);
  Collega(ui_->mnuFileNuovo, &MDIEditorTorvi::mnuFileNuovo_Click);
  Collega(ui_->mnuFileEsci, &MDIEditorTorvi::mnuFileEsci_Click);
  Collega(ui_->mnuUtilitaHTML, &MDIEditorTorvi::mnuUtilitaHTML_Click);
  Collega(ui_->mnuUtilitaHTML_HUDOC, &MDIEditorTorvi::mnuUtilitaHTML_HUDOC_Click);
  Collega(ui_->mnuFormatoASCIIStorico, &MDIEditorTorvi::mnuFormatoASCIIStorico_Click);
  Collega(ui_->mnuFormatoASCIIIsis, &MDIEditorTorvi::mnuFormatoASCIIIsis_Click);
  Collega(ui_->mnuFormatoASCIICassazione, &MDIEditorTorvi::mnuFormatoASCIICassazione_Click);
  Collega(ui_->mnuFileNotaDocumenti, &MDIEditorTorvi::mnuFileNotaDocumenti_Click);
  Collega(ui_->mnuFileNuovi, &MDIEditorTorvi::mnuFileNuovi_Click);
  Collega(ui_->mnuFileErroriGenerici, &MDIEditorTorvi::mnuFileErroriGenerici_Click);
  Collega(ui_->mnuFileErroriClasse, &MDIEditorTorvi::mnuFileErroriClasse_Click);
  Collega(ui_->mnuFileErroriFonti, &MDIEditorTorvi::mnuFileErroriFonti_Click);
  Collega(ui_->mnuStampaCompleta, &MDIEditorTorvi::mnuStampaCompleta_Click);
  Collega(ui_->mnuStampaSoloTesti, &MDIEditorTorvi::mnuStampaSoloTesti_Click);
  Collega(ui_->mnuCaricaTabLegami, &MDIEditorTorvi::mnuCaricaTabLegami_Click);
  Collega(ui_->mnuCaricaTabDescrittori, &MDIEditorTorvi::mnuCaricaTabDescrittori_Click);
  Collega(ui_->mnuCaricaTabDescrittoriAsteriscati,
          &MDIEditorTorvi::mnuCaricaTabDescrittoriAsteriscati_Click);
  Collega(ui_->mnuCaricaTabSistematici, &MDIEditorTorvi::mnuCaricaTabSistematici_Click);
  Collega(ui_->mnuCatalogoNorme, &MDIEditorTorvi::mnuCatalogoNorme_Click);
  Collega(ui_->mnuUtilitaControllo, &MDIEditorTorvi::mnuUtilitaControllo_Click);
  Collega(ui_->mnuStampaProspetto, &MDIEditorTorvi::mnuStampaProspetto_Click);
  Collega(ui_->mnuStampaConsistenza, &MDIEditorTorvi::mnuStampaConsistenza_Click);
  Collega(ui_->mnuUtilitaAggiornamentoStorico,
          &MDIEditorTorvi::mnuUtilitaAggiornamentoStorico_Click);
  Collega(ui_->mnuUtilitaAggiornamentoISIS, &MDIEditorTorvi::mnuUtilitaAggiornamentoISIS_Click);
  Collega(ui_->mnuUtilitaAggiornamentoCassazione,
          &MDIEditorTorvi::mnuUtilitaAggiornamentoCassazione_Click);
  Collega(ui_->mnuUtilitaAggiornamentoNote, &MDIEditorTorvi::mnuUtilitaAggiornamentoNote_Click);
  Collega(ui_->mnuUtilitaAggiornamentoFileNuovi,
          &MDIEditorTorvi::mnuUtilitaAggiornamentoFileNuovi_Click);
  Collega(ui_->mnuUtilitaAggiornamentoCelex, &MDIEditorTorvi::mnuUtilitaAggiornamentoCelex_Click);
  Collega(ui_->mnuUtilitaAggiornamentoHUDOC, &MDIEditorTorvi::mnuUtilitaAggiornamentoHUDOC_Click);
  Collega(ui_->mnuUtilitaAggiornamentoConteggioDocumenti,
          &MDIEditorTorvi::mnuUtilitaAggiornamentoConteggioDocumenti_Click);
  Collega(ui_->mnuUtilitaAggiornamentoModificaLista,
          &MDIEditorTorvi::mnuUtilitaAggiornamentoModificaLista_Click);
  Collega(ui_->mnuAggiornamentoNuovo, &MDIEditorTorvi::mnuAggiornamentoNuovo_Click);
  Collega(ui_->mnuAggiornamentoEdita, &MDIEditorTorvi::mnuAggiornamentoEdita_Click);
  Collega(ui_->mnuAggiornamentoCancella, &MDIEditorTorvi::mnuAggiornamentoCancella_Click);
  Collega(ui_->mnuAggiornamentoRicerca, &MDIEditorTorvi::mnuAggiornamentoRicerca_Click);
  statoDocumento_->setObjectName(QStringLiteral("statoDocumento"));
  statoDocumento_->setContentsMargins(0, 0, 8, 0);
  statusBar()->addPermanentWidget(statoDocumento_);
  AdattaAlloSchermo(*this);
  ImpostaFase(FaseMenu::NessunArchivio);
}

MDIEditorTorvi::~MDIEditorTorvi() = default;

// Every command runs under the guard.
void MDIEditorTorvi::Collega(QAction* voce, Gestore gestore) {
  connect(voce, &QAction::triggered, this,
          [this, gestore] { Esegui(dialoghi_, [this, gestore] { (this->*gestore)(); }); });
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
  ComandoChiudi(stato_);
  ImpostaFase(FaseMenu::NessunArchivio);
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
