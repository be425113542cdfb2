// What the window and torvi do alike when an archive is opened, and when a delivery is made.
#pragma once

#include "archive/database.h"
#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Opens the archive at `percorso`, looked up without regard to case. A genuine Jet file that holds
// an archive is converted where it stands, with its progress shown; the original stays beside it as
// "<percorso>.jet". Errors are those of OpenDatabase and of the conversion; a database that lacks a
// table of an archive: error 3011. Nothing is changed then.
[[nodiscard]] Database ApriArchivio(const QString& percorso, Dialoghi& dialoghi);

// The same for a norm catalogue that is to be written to. A database that lacks one of its tables:
// error 3011.
[[nodiscard]] Database ApriCatalogo(const QString& percorso, Dialoghi& dialoghi);

// The same as ApriArchivio for an archive that has to be a delivery: one whose `TabInfo` has not
// exactly one row is opened all the same, and a message says so.
[[nodiscard]] Database ApriConsegna(const QString& percorso, Dialoghi& dialoghi);

// A new delivery: what is committed in the master archive, under the upper-cased name, with its row
// of `TabInfo` from `informazione` ("consegna|inizio|centro|anno"). It is made beside, checked, and
// takes its place when it is complete; until then, and whatever fails, what was there stays. A file
// that it replaces is kept beside, and a message names it. DbArchivio is left closed. A master in
// Jet form is converted first. No master: error 53; the master itself as target: 70; a master that
// holds a delivery: 3011; a folder as target: 75; no folder: 76; fewer than four fields: error 9;
// one that its column cannot hold: 3421. Result: the path of the new file, behind a link the real
// one.
QString CreaConsegna(StatoGlobale& stato, const QString& percorso, const QString& informazione,
                     Dialoghi& dialoghi);

}  // namespace torvi
