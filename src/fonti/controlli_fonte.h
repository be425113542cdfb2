// What the controls of one tab of a source entry form hold, by their names. A composer reads them;
// what a form does not have stays in its empty state.
#pragma once

#include <QString>
#include <optional>

namespace torvi {

// What combos show until something is chosen. Only that counts as not chosen: an emptied combo is
// filled with nothing.
inline const QString kRipartizione = QStringLiteral("Ripartizione");
inline const QString kMese = QStringLiteral("Mese");
inline const QString kRegione = QStringLiteral("Regione");

struct ControlliFonte {
  int indice = 0;                   // of the tab's controls
  QString ComboFonte;               // kind of act; the header where none was chosen
  std::optional<QString> lstFonte;  // the act, where one is selected
  QString txtGG;
  QString ComboMese = kMese;
  QString txtAA;
  QString txtN;
  QString txtArt;
  QString ComboRipA = kRipartizione;
  QString txtComma;
  QString ComboRipC = kRipartizione;
  QString txtLett;
  QString txtNumP;
  QString txtAll;
  bool chkOrd = false;
  bool chkDecr = false;
  QString ComboRegione = kRegione;
  QString txtInfo1;
  QString txtInfo2;
  QString txtInfo3;
  QString txtLibero;
  QString txtStato;
};

}  // namespace torvi
