// The variables of the system that live as long as the program, under their own names. The program
// owns one of these and hands it by reference; a test makes its own.
#pragma once

#include <QString>
#include <vector>

#include "archive/database.h"

namespace torvi {

struct StatoGlobale {
  Database DbArchivio;           // stays assigned, closed, after an archive is closed
  QString PathArchivio;          // path returned by the last file dialog
  QString CartellaApplicazione;  // folder of the executable, without a final separator

  QString InfoNuovoArchivio;  // the four fields of frmInformazione joined by '|'; empty: cancelled
  std::vector<qint16> ListaRicerca;  // documents of the last search; NumRicerca is its size
  bool NotaDocCancellata = false;
  QString PasswordRiservata;  // what the restricted login compares against, set at start-up

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
