// What the combos of both source entry forms offer.
#pragma once

#include <QStringList>

namespace torvi {

// Ordinal adverbs, from "bis". Articles of Italian law have four more than paragraphs; all other
// law has fewer.
[[nodiscard]] QStringList RipartizioniArticolo();
[[nodiscard]] QStringList RipartizioniComma();
[[nodiscard]] QStringList RipartizioniAltroDiritto();
// "gennaio" to "dicembre".
[[nodiscard]] QStringList NomiMesi();
// "AB - Abruzzo": only the two letters are used.
[[nodiscard]] QStringList Regioni();

}  // namespace torvi
