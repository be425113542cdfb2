// The main window: it owns the menus and their states, and starts the commands.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <memory>

#include "document/frmDocumento.h"
#include "shell/finestra_dialoghi.h"
#include "shell/stati_menu.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class MDIEditorTorvi;
}

class MDIEditorTorvi : public QMainWindow {
  Q_OBJECT

 public:
  explicit MDIEditorTorvi(StatoGlobale& stato, QWidget* padre = nullptr);
  ~MDIEditorTorvi() override;

  void ImpostaFase(FaseMenu fase);
  [[nodiscard]] Dialoghi& DialoghiDellaFinestra() { return dialoghi_; }

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  // An entry and what it starts.
  struct VoceMenu {
    QAction* Ui::MDIEditorTorvi::*azione;
    void (MDIEditorTorvi::*gestore)();
  };
  static const VoceMenu kVociMenu[];
  void Collega(const VoceMenu& voce);

  void mnuFileApri_Click();
  void mnuFileChiudi_Click();
  void mnuFileNuovo_Click();
  void mnuFileEsci_Click();
  void mnuAggiornamentoNuovo_Click();
  void mnuAggiornamentoEdita_Click();
  void mnuAggiornamentoCancella_Click();
  void mnuAggiornamentoRicerca_Click();
  void mnuUtilitaHTML_Click();
  void mnuUtilitaHTML_HUDOC_Click();
  void mnuStampaCompleta_Click();
  void mnuStampaSoloTesti_Click();
  void mnuStampaProspetto_Click();
  void mnuStampaConsistenza_Click();
  void mnuFormatoASCIIStorico_Click();
  void mnuFormatoASCIIIsis_Click();
  void mnuFormatoASCIICassazione_Click();
  void mnuFileNotaDocumenti_Click();
  void mnuFileNuovi_Click();
  void mnuFileErroriGenerici_Click();
  void mnuFileErroriClasse_Click();
  void mnuFileErroriFonti_Click();
  void mnuCaricaTabLegami_Click();
  void mnuCaricaTabDescrittori_Click();
  void mnuCaricaTabDescrittoriAsteriscati_Click();
  void mnuCaricaTabSistematici_Click();
  void mnuCatalogoNorme_Click();
  void mnuUtilitaControllo_Click();
  void mnuUtilitaAggiornamentoStorico_Click();
  void mnuUtilitaAggiornamentoISIS_Click();
  void mnuUtilitaAggiornamentoCassazione_Click();
  void mnuUtilitaAggiornamentoNote_Click();
  void mnuUtilitaAggiornamentoFileNuovi_Click();
  void mnuUtilitaAggiornamentoCelex_Click();
  void mnuUtilitaAggiornamentoHUDOC_Click();
  void mnuUtilitaAggiornamentoConteggioDocumenti_Click();
  void mnuUtilitaAggiornamentoModificaLista_Click();

  // The document form; the one that is open where there is one.
  void MostraDocumento();
  void DocumentoScaricato();
  // The menus that a document on screen locks.
  void AbilitaMenu(bool abilitati);

  std::unique_ptr<Ui::MDIEditorTorvi> ui_;
  StatoGlobale& stato_;
  DialoghiFinestra dialoghi_;
  Dizionari dizionari_;
  QPointer<frmDocumento> documento_;
  QLabel* statoDocumento_;
};

}  // namespace torvi
