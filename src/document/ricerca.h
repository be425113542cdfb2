// Documents found by one field. The statement that a search runs is put together here to the
// character; its result is the list that the form shows and the set that moving about in the
// document form is limited to.
#pragma once

#include <QStringList>
#include <span>

#include "shell/condizione_parole.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// A field that can be searched: what the statement has for it.
struct CampoRicerca {
  const char16_t* voce;  // as the operator chooses it
  const char16_t* seleziona;
  const char16_t* da;
  const char16_t* dove;     // in front of the condition
  const char16_t* colonna;  // of the condition
  const char16_t* chiusura;
  bool almenoUna;  // its words are single values: the form proposes no other way
};

// In the order of the form.
[[nodiscard]] std::span<const CampoRicerca> CampiRicerca();

// The whole statement, to the character.
[[nodiscard]] QString IstruzioneRicerca(const CampoRicerca& campo, ModoCampo modo,
                                        const QString& parole);

// What a search shows, and whether it has documents to go to.
struct RisultatoRicerca {
  QStringList lstRisultato;
  bool cmdInterroga = false;
};

// Before the first search: SqlRicerca and ListaRicerca emptied.
void AzzeraRicerca(StatoGlobale& stato);
// Runs a search; `campo` is null where none was chosen. Fills SqlRicerca, ListaRicerca and, where
// documents are found, IDDocumentoScelto. A statement that fails leaves everything as it was; a
// number past 32767 is error 6, after the line that shows it.
void EseguiRicerca(StatoGlobale& stato, Dialoghi& dialoghi, const CampoRicerca* campo,
                   ModoCampo modo, const QString& parole, RisultatoRicerca& risultato);

}  // namespace torvi
