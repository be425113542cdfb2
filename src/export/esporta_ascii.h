// The export of the open delivery as tagged ASCII, in three flavours, with its three error files.
#pragma once

#include <QStringList>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

class CatalogoNorme;
class FontiInAnticipo;
struct TabelleCondivise;

// What a flavour writes follows from these alone.
struct FlagEsportazione {
  bool flagCassazione = false;
  bool flagStorico = false;
  bool flagIsis = false;
};
inline constexpr FlagEsportazione kEsportaIsis{true, true, true};
inline constexpr FlagEsportazione kEsportaCassazione{true, false, false};
inline constexpr FlagEsportazione kEsportaStorico{false, true, false};

// One whole run over the documents of `DbArchivio`. In ModoBatch it asks nothing and appends to
// `FileBatch`; otherwise it asks whether sources are required and whether to append, marks the
// delivery as exported, and the chooser sets `FileBatch`.
//
// The four files take their places together at the end of the run; a program that is killed leaves
// what was there before. Nothing is appended to a file that is no lexxdump (75).
//
// The checks never end a run. What does, with whole records left in the output and no closing
// lines: a file that cannot be opened (75, 76), that another program is writing (55) or that cannot
// be written (57, 61), an archive without documents
// (3021), Null where text is needed (94), a row that a document refers to and that is not there
// (3021), a counter past 32767 (6), 245 or 1000 characters without a blank (5).
void EsportaAscii(StatoGlobale& stato, Dialoghi& dialoghi, const FlagEsportazione& flag);
// The same with a catalogue that several runs share, and with what may have been read of
// `DbArchivio` before.
void EsportaAscii(StatoGlobale& stato, Dialoghi& dialoghi, const FlagEsportazione& flag,
                  CatalogoNorme& catalogo, TabelleCondivise& condivise, FontiInAnticipo& fonti);
// The error files that a run which appends to `FileBatch` appends to as well.
[[nodiscard]] QStringList FileErroriAccodati(const StatoGlobale& stato);

}  // namespace torvi
