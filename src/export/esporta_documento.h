// One document of an export: its row read, its fields written in their fixed order, its record
// handed to the output file.
#pragma once

#include "export/contesto.h"
#include "export/esporta_ascii.h"

namespace torvi {

// `riga` stands on the row of TabDocumento. Raises ContatoreDoc; past 32767: error 6, after the
// record is written.
void EsportaDocumento(ContestoEsportazione& contesto, const FlagEsportazione& flag,
                      const Recordset& riga, FileTesto& uscita);

}  // namespace torvi
