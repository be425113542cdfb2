// The values in the fields of a Jet row. Private to archive/.
#pragma once

#include <QByteArray>

#include "archive/campo.h"
#include "archive/jet_righe.h"

namespace torvi::jet {

// Numbers as numbers, dates as text dd/mm/yyyy (and hh:mm:ss where it is not midnight), decimals
// as text, bytes as text of hexadecimal digits. A value that its type cannot have: error 3343.
[[nodiscard]] Campo Valore(Pagine& pagine, const ColonnaJet& colonna, const CampoGrezzo& campo);

// A memo's or an object's bytes, from the row itself or from the pages that it points to.
[[nodiscard]] QByteArray Lungo(Pagine& pagine, Ottetti campo);

// Text as two bytes a character or, after FF FE, with the runs of Latin-1 in one.
[[nodiscard]] QString Testo(const Pagine& pagine, Ottetti ottetti);

}  // namespace torvi::jet
