// The list files of a batch: "sigle." and three characters of the update, in mdb/, one delivery
// code a line in the order of processing.
#pragma once

#include <QStringList>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// The lines as they stand, blank ones too, up to a Ctrl-Z; behind a byte-order mark they are UTF-8.
// Not there: error 53; a line of more than 255 characters: 5.
[[nodiscard]] QStringList LeggiSigle(const QString& percorso);
// Takes the place of a file of that name. No name, no permission: error 75; a full disk: 61.
void ScriviSigle(const QString& percorso, const QStringList& sigle);

// Asks for a list file: one that is there, or the name of a new one, until no file has it. Sets
// FileBatch to the path. False: the operator chose none.
[[nodiscard]] bool ScegliFileSigle(StatoGlobale& stato, Dialoghi& dialoghi, bool nuovo);

}  // namespace torvi
