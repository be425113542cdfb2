// The document on screen, without its screen: what the controls of the document form show, and what
// the form remembers between two commands. The form copies its controls in, calls a routine of
// carica.h, salva.h or comandi.h, and shows what comes out.
#pragma once

#include <QStringList>
#include <array>
#include <map>
#include <optional>

#include "archive/errore.h"
#include "archive/recordset.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The controls by name. A combo is the text that it shows, its placeholder included; only the
// placeholder counts as not chosen. A list is its lines.
struct CampiDocumento {
  QString txtID;
  QString txtAnnoPr;
  QString txtTitolo;
  QString txtNota;
  QString txtCPer;
  QString txtRivista;
  QString txtFascicolo;
  QString txtAnnata;
  QString txtVolume;
  QString txtParte;
  QString txtSerie;
  QString txtSuppl;
  QString txtSez;
  QString txtGG;
  QString txtMM;
  QString txtAA;
  QString txtPagine;
  QString ComboLIN;
  QString ComboTD;
  QString ComboTAbs;
  QString ComboBib;
  QStringList lstResponsabilita;
  QStringList lstClassificazione;
  QStringList lstFonte;
  // By kind of text, 0 to 8: whether its button bears the icon of a text that exists.
  std::array<bool, 9> icone{};
  bool operator==(const CampiDocumento&) const = default;
};

// The items of the combos: code, '|', description.
struct CodiciDocumento {
  QStringList ComboLIN;
  QStringList ComboTD;
  QStringList ComboTAbs;
  QStringList ComboBib;
};

struct Documento {
  Documento(StatoGlobale& statoGlobale, Dialoghi& dialoghiDellaForma)
      : stato(statoGlobale), dialoghi(dialoghiDellaForma) {}

  StatoGlobale& stato;
  Dialoghi& dialoghi;
  CampiDocumento campi;
  CodiciDocumento codici;
  Database archivio;                     // the one that the form was loaded from
  std::optional<Recordset> RsDocumenti;  // on table TabDocumento, from the form's load to its end
  bool SalvaComeNuovo = false;           // the next save inserts a row
  qint16 IndiceResponsabilita = -1;      // selected row of each list, -1 when none
  qint16 IndiceClasse = -1;
  qint16 IndiceFonte = -1;
  bool comandiVisibili = true;  // cmdSalva and cmdDuplica, set by the form's load alone
  QString fuoco;                // control that the last routine wants the focus on; empty: none

  // Why the document of txtID could not be loaded; empty where it stands here whole. What is not
  // whole is never saved.
  QString guasto;
  QStringList testiMancanti;  // texts that the archive links to and does not have, by their names
  qint64 numeroMostrato = 0;  // what the program last put into txtID
  qint64 numeroSuo = 0;       // the document's row in the archive, once loaded or saved; 0: none
  // What the archive held of the document when it was loaded or saved, by the parts of which the
  // operator is told.
  std::map<QString, QString> impronta;

  // Opens RsDocumenti on the archive that is open.
  void ApriDocumenti();
  // RsDocumenti; error 91 where the form's load failed before it was opened.
  [[nodiscard]] Recordset& Documenti();
  // An archive that was closed and opened again under the form serves as before. Another one must
  // not get a document that is not its own: error 3420.
  void RiprendiArchivio();
};

// Which of the two classification schemes the year selects; years compare as text.
[[nodiscard]] inline bool SchemaPrima2000(const CampiDocumento& campi) {
  return campi.txtAA < QStringLiteral("2000");
}

}  // namespace torvi
