// A document on its way from the archive to the form. Failures are ErroreEsecuzione; what was
// loaded before one stays.
#pragma once

#include "document/documento.h"

namespace torvi {

// What the combos show until something is chosen.
[[nodiscard]] QString SegnapostoLIN();
[[nodiscard]] QString SegnapostoTD();
[[nodiscard]] QString SegnapostoTAbs();
[[nodiscard]] QString SegnapostoBib();

// The form's load: a new document, or the one chosen. In an archive without documents the number
// becomes " 1"; any other failure ends the load without a box: the document is left empty under its
// number, and `guasto` says why.
void CaricaForma(Documento& documento);
// Fills the combos and the production year.
void CaricaCodici(Documento& documento);
// Makes the form ready for a new document. The icons stay as they were.
void SvuotaDocumento(Documento& documento);
// The document whose number stands in txtID. A text that is gone is left out, and named in
// `testiMancanti`; any other failure is thrown.
void CaricaDocumento(Documento& documento);
// The same, or nothing of it: what fails leaves every field empty and `guasto` set, and is thrown
// with the number in front.
void CaricaIntero(Documento& documento);
// The message of a command that needs the document whole, where it is not.
void AvvertiNonCaricato(const Documento& documento);
// The journal of the code in txtCPer. An unknown code gets a message and the focus back.
void ControllaPeriodico(Documento& documento);

}  // namespace torvi
