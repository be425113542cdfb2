// A sample delivery: documents that read like those of a centre and reach every kind of source,
// text and classification, some of them with the faults that the export reports. None of them stops
// it.
#pragma once

#include <QString>

namespace torvi {

inline constexpr int kDocumentiEsempio = 40;
// The running number of the last one must fit 16 signed bits.
inline constexpr int kMassimoDocumentiEsempio = 32'750;

// Delivery A01 of 2001, centre A, first number 12, in a copy of `master`, or of one made on the
// spot where that file is not there. The same number of documents gives the same bytes. `percorso`
// must not exist: error 75. The file appears when it is complete. A master that lacks a table or
// has rows in the document tables: error 3011.
void CreaEsempio(const QString& percorso, const QString& master, int documenti);

}  // namespace torvi
