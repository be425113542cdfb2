// One tab of the form of other law. All five hold the same controls and show those that the chosen
// kind of act needs.
#pragma once

#include <QWidget>
#include <memory>

#include "fonti/salva_fonte.h"

namespace torvi {

namespace Ui {
class frmTabAltraFonte_pagina;
}
class ComboDiCodici;
struct VoceAltra;

class frmTabAltraFonte_pagina : public QWidget {
  Q_OBJECT

 public:
  frmTabAltraFonte_pagina(StatoGlobale& stato, Dialoghi& dialoghi, int indice,
                          QWidget* padre = nullptr);
  ~frmTabAltraFonte_pagina() override;

  [[nodiscard]] ControlliFonte Leggi() const;
  // The focus to the kind of act.
  void TornaAllaVoce();
  // The treaty that was chosen. The focus goes to what comes after the kind of act.
  void MettiTrattato(const QString& linea);
  void PulisciTab();
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 Q_SIGNALS:
  void Cambiato();
  // The treaties are to be shown, or to go.
  void Trattati(bool aperti);
  // With the result of the form.
  void Esce(int esito);

 private:
  using Gestore = void (frmTabAltraFonte_pagina::*)();
  void Collega();
  void CollegaComandi();
  void CollegaCampi();
  void PreparaListe();

  void ComboFonte_Click();
  void lstFonte_Click();
  void cmdListaStati_Click();
  void cmdSalva_Click();
  void cmdClear_Click();
  void cmdEsciSalva_Click();
  void cmdAbbandona_Click();
  void cmdAid_Click();

  EsitoFonte SalvaFonte();
  void MostraVoce(const VoceAltra& voce);
  void RiempiListaFonte(const QStringList& atti);
  void MostraAltro(bool visibile);
  void MostraStato(bool visibile);
  [[nodiscard]] bool ConvenzioneSelezionata() const;

  // A choice is told by more than one signal: it is acted upon once, when they are over; at once
  // where Tab ends it, since what is typed next is meant for the field that it leads to.
  void SegnalaScelta();
  // Acts upon it now. What is typed becomes a choice first.
  void Conferma();
  void ConcludiScelta();
  void EventoInComboFonte(const QEvent& evento);
  void EsceConTab();

  std::unique_ptr<Ui::frmTabAltraFonte_pagina> ui_;
  StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  int indice_;
  ComboDiCodici* comboFonte_;    // owned by its combo
  ComboDiCodici* comboRegione_;  // the same
  bool sceltaDovuta_ = false;
  bool uscitoConTab_ = false;    // the choice ended with Tab
  bool diPassaggio_ = false;     // an arrow only goes over the items
  bool trattatiDovuti_ = false;  // passed over, to be opened if the operator stops there
};

}  // namespace torvi
