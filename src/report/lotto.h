// One operation over a list of deliveries, its outputs gathered in one file.
#pragma once

#include <QStringList>
#include <span>

#include "export/file_testo.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

struct FlagEsportazione;

enum class Lotto { Isis, Cassazione, Storico, Celex, Hudoc, Note, Nuovi, Conteggio };

struct VoceLotto {
  const char* nome;  // as torvi has it
  Lotto lotto;
  QLatin1StringView uscita;  // in dump/, before the extension of the list
  QLatin1StringView coda;    // behind it
  // Both append to FileBatch; neither: the documents are counted.
  const FlagEsportazione* esportazione;
  void (*operazione)(StatoGlobale& stato, Dialoghi& dialoghi);
};
[[nodiscard]] std::span<const VoceLotto> VociLotto();

// What a delivery that fails does to those behind it.
enum class AlGuasto { Ferma, Prosegui };

struct EsitoLotto {
  bool riuscito = false;   // it came to its end, and no delivery failed
  qsizetype consegne = 0;  // in the list
  qsizetype fatte = 0;
  QStringList fallite;  // as they were named to the operator
};

// Sets ModoBatch for the rest of the run, asks for the list (FileBatch, then the common output) and
// goes through it. Each archive in turn becomes DbArchivio and is closed. The first failure is
// shown as number and description and ends the run, the archive at hand still open. With Prosegui
// the failing delivery is named with it, what it had added to the common file and to the error
// files of an export is taken back, and the others are done.
EsitoLotto EseguiLotto(StatoGlobale& stato, Dialoghi& dialoghi, Lotto lotto,
                       AlGuasto alGuasto = AlGuasto::Ferma);

// Prints how many documents the open delivery has, with their first and last delivery number.
// Result: how many there are.
int ContaDocumentiConsegna(StatoGlobale& stato, FileTesto& file);

}  // namespace torvi
