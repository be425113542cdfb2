// The variables of the system that live as long as the program, under their own names. The program
// owns one of these and hands it by reference; a test makes its own.
#pragma once

#include <QString>
#include <vector>

#include "archive/database.h"
#include "shell/righe.h"

namespace torvi {

struct StatoGlobale {
  Database DbArchivio;           // stays assigned, closed, after an archive is closed
  QString PathArchivio;          // path returned by the last file dialog, or of the catalogue
  Database DbCatalogo;           // the norm catalogue, open since its reduced table was loaded
  QString CartellaApplicazione;  // folder of the executable, without a final separator

  QString InfoNuovoArchivio;  // the four fields of frmInformazione joined by '|'; empty: cancelled

  bool DocumentoNuovo = false;       // the document form works on a document that has no row yet
  QString IDDocumentoScelto;         // what the document form loads
  bool ModoRicerca = false;          // moving about is limited to the documents found
  QString SqlRicerca;                // statement of the last search; empty until one ran
  std::vector<qint16> ListaRicerca;  // documents of the last search; NumRicerca is its size

  // The document on screen: rows of its lists (the counts are their sizes), and the texts that have
  // no control on the form.
  std::vector<RigaResponsabilita> RigheResponsabilita;
  std::vector<RigaClasse> RigheClasse;
  std::vector<RigaFonte> RigheFonte;
  QString TestoRiassunto;
  QString TestoSommario;
  QString TestoTraduzione;
  QString TestoInTemaDi;
  QString TestoEnglishAbstract;
  QString TestoNotaDoc;
  QString TestoNota;
  bool NotaDocCancellata = false;  // once True, never cleared during the run

  // What the subordinate forms are opened for, and what they give back.
  bool NuovaClasse = false;  // a new row; otherwise the chosen one is changed
  bool NuovaFonte = false;
  QString TipoFonteScelto;
  QString TipoTestoRiassunto;  // "0" riassunto, "1" sommario, "2" in tema di, "3" English abstract
  QString TestoEsteso;
  QString ValoreLista;

  QString PasswordRiservata;    // what the restricted login compares against, set at start-up
  bool LoginRiservato = false;  // result of the last login

  bool ModoBatch = false;  // set by the first batch and never reset: exports ask nothing and append
  QString FileBatch;       // the chosen list file, then the common output file
  QString TestoErrori;     // what frmWndErrori shows

  // Delivery values, filled by LeggiInfoConsegna.
  QString SiglaConsegna;    // `Consegna`, the file extension of all outputs
  QString PrefissoDoc;      // production year and centre
  qint16 ContatoreDoc = 0;  // running number, from the numeric value of `NumInizio`

  // Export values; they outlive a run.
  bool ControlloFonti = false;  // sources are required on every document
  bool Dopo2000 = false;        // year of the last document with a date is 2000 or later
};

}  // namespace torvi
