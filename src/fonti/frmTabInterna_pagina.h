// One page of the internal-law form: the kind of act, the act, what the kind asks for, and the
// commands at the foot, which the form carries out.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <memory>

#include "fonti/controlli_fonte.h"
#include "fonti/interroga_catalogo.h"
#include "fonti/voci_interna.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

namespace Ui {
class frmTabInterna_pagina;
}
class ComboDiCodici;

class frmTabInterna_pagina : public QWidget {
  Q_OBJECT

 public:
  // `scheda` counts the pages from 0. Reads the lists of the archive; throws what that throws.
  frmTabInterna_pagina(const StatoGlobale& stato, Dialoghi& dialoghi, int scheda,
                       QWidget* padre = nullptr);
  ~frmTabInterna_pagina() override;

  [[nodiscard]] ControlliFonte Leggi() const;
  // What is typed in a combo becomes one of its items. A command runs it before it reads, since a
  // mnemonic leaves the focus where it was.
  void Conferma();
  // Combos to their first entry, everything typed or listed away; the cities and sections of the
  // page of judgments stay. What is shown stays shown.
  void Pulisci();
  // To the kind of act, for the next source.
  void Entra();
  // An act found in the catalogue; the operator goes on with its divisions.
  void MettiAtto(const AttoTrovato& atto);

 Q_SIGNALS:
  void Cambiato();
  void Salva();
  void SalvaEPulisci();
  void EsciESalva();
  void Abbandona();
  void ConsultaCatalogo();

 private:
  // A field of free text with its caption, and with a list to take it from.
  struct Info {
    QLabel* etichetta;
    QLineEdit* campo;
    QListWidget* lista;
  };

  void PreparaPosti();
  void PreparaListe();
  void CollegaCambiamenti();
  void CollegaComandi();
  void ComboFonte_Click();
  void Mostra(const VoceInterna& voce);
  void MostraInfo(int numero, const char16_t* titolo);
  [[nodiscard]] QString Testata() const;

  std::unique_ptr<Ui::frmTabInterna_pagina> ui_;
  const StatoGlobale& stato_;
  Dialoghi& dialoghi_;
  const SchedaInterna& scheda_;
  std::array<Info, 3> info_;
  ComboDiCodici* fonte_ = nullptr;  // owned by their combos
  ComboDiCodici* regione_ = nullptr;
};

}  // namespace torvi
