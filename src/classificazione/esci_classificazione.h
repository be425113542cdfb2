// "Esci e salva" of the two classification forms: what was typed becomes rows of RigheClasse, new
// ones or, in change mode, row `indiceClasse` (negative: none). Without a code the operator is told
// and no row is made; the form closes all the same. An index past the rows is error 9. A failure
// leaves the rows as they were.
#pragma once

#include <QStringList>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The controls of frmClassificazione.
struct CampiClassificazione {
  QString txtSistematico;
  QString txtDescrittore;
  QStringList lstDescrittore;  // code, " --> ", description
  QString txtAsteriscato;
};

void EsciClassificazione(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                         const CampiClassificazione& campi);
// The scheme before 2000 has one code and no pairs. A changed row loses its mark for deletion.
void EsciClassificazione1999(StatoGlobale& stato, Dialoghi& dialoghi, qint16 indiceClasse,
                             const QString& txtCodice);

// The line of lstDescrittore for a code.
[[nodiscard]] QString RigaDescrittore(const QString& codice, const QString& descrizione);

}  // namespace torvi
