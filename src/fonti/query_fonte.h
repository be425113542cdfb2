// The statement that decides which stored source is the same as one on the form.
#pragma once

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The whole search statement. As a side effect it may add rows to the small tables. For a kind with
// a catalogue it asks that the row's own number be the catalogue's key: such a source is found
// again only by chance, and most saves write it anew.
[[nodiscard]] QString QueryFonte(StatoGlobale& stato, Dialoghi& dialoghi, const RigaFonte& riga);

}  // namespace torvi
