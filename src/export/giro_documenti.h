// The walk over the documents of a delivery that exports and prints have in common.
#pragma once

#include <functional>

#include "shell/dialoghi.h"
#include "shell/stato_globale.h"

namespace torvi {

// Hands each document's row to `azione`, in the order of their numbers, and shows how far it has
// come with `cosa`. `origine` is the statement from its "from" on. Result: how many rows there
// were. What `azione` throws leaves with the document's numbers in its description.
int GiraDocumenti(const StatoGlobale& stato, Dialoghi& dialoghi, const QString& cosa,
                  const QString& origine, const std::function<void(const Recordset&)>& azione);

}  // namespace torvi
