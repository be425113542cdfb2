// The document on screen: reference fields, three lists, the buttons that open the subordinate
// forms, and the function keys. Nothing reaches the archive before a save.
#pragma once

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>
#include <memory>
#include <optional>

#include "document/comandi.h"
#include "document/contenuto.h"
#include "shell/finestra_combo.h"
#include "shell/finestra_uscita_campo.h"
#include "testi/dizionario.h"

namespace torvi {

namespace Ui {
class frmDocumento;
}

class frmDocumento : public QWidget {
  Q_OBJECT

 public:
  // Loads a new document, or the one chosen, as the state tells.
  frmDocumento(StatoGlobale& stato, Dialoghi& dialoghi, Dizionari& dizionari,
               QWidget* padre = nullptr);
  ~frmDocumento() override;

  // "Documento 12: esistente, modificato".
  [[nodiscard]] QString Stato() const;
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 Q_SIGNALS:
  void StatoCambiato(const QString& stato);
  void Scaricata();  // the operator has left the form

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  using Gestore = void (frmDocumento::*)();
  struct Tasto;

  void CollegaPulsanti();
  void CollegaCampi();
  void Collega(QPushButton& pulsante, Gestore gestore, const char* icona = nullptr);
  // A command, between what the controls show before it and after it.
  void Corri(Gestore gestore);
  [[nodiscard]] static bool SenzaDocumento(Gestore gestore);
  bool TastoFunzione(const QKeyEvent& tasto);
  void Entra(const QObject* controllo, Qt::FocusReason motivo);
  void EntraInLista(const QObject* controllo, Qt::FocusReason motivo);
  // Leaves without a question.
  void Scarica();

  // What stands in the controls, and back.
  void LeggiCampi();
  void MostraCampi();
  static void MostraVoci(QComboBox& combo, const QStringList& voci);
  static void MostraLista(QListWidget& lista, const QStringList& linee, qint16 scelta);
  void MostraIcone();
  void MostraGuasto();
  void MostraFuoco();
  void AggiornaStato();

  void frmHelp_Show();
  void cmdSalva_Click();
  void cmdEsci_Click();
  void cmdAbbandona_Click();
  void cmdAvanti_Click();
  void cmdIndietro_Click();
  void cmdNew_Click();
  void cmdDuplica_Click();
  void cmdResponsabilitaN_Click();
  void cmdResponsabilitaM_Click();
  void cmdResponsabilitaD_Click();
  void cmdClasseN_Click();
  void cmdClasseM_Click();
  void cmdClasseD_Click();
  void cmdFonteN_Click();
  void cmdFonteM_Click();
  void cmdFonteD_Click();
  void cmdFonteT_Click();
  void cmdRiassunto_Click();
  void cmdSommario_Click();
  void cmdInTemaDi_Click();
  void cmdEnglishAbstract_Click();
  void cmdTraduzione_Click();
  void cmdNota_Click();
  void cmdNotaDoc_Click();
  void cmdCancellaNotaCompilatore_Click();
  bool txtCPer_LostFocus();

  void ApreResponsabilita(bool nuova);
  void ApreClasse(bool nuova);
  // `genere`: the kind of text, 0 to 8.
  void ApreRiassunto(const char* tipo, std::size_t genere);
  template <typename Forma>
  void ApreTestoBreve(std::size_t genere);
  // Whether the text exists now.
  void SegnaTesto(std::size_t genere);

  std::unique_ptr<Ui::frmDocumento> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  Dizionari& dizionari_;
  Documento documento_;
  std::optional<ContenutoDocumento> salvato_;  // as loaded or saved; empty: to be taken anew
  std::vector<ComboDiCodici*> combo_;          // in the order of their table
  std::unique_ptr<UscitaCampo> uscita_;
  bool mostra_ = false;   // the controls change by the program's hand
  bool uscendo_ = false;  // no question on closing
};

}  // namespace torvi
