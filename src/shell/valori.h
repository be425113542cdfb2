// Small conversions between text and numbers that every subsystem shares.
#pragma once

#include <QString>

namespace torvi {

// The longest leading number of a text, blanks ignored: "12a" is 12, "a" and "" are 0.
[[nodiscard]] double Val(QStringView testo);
// "0" on the left up to the width; a longer text stays as it is.
[[nodiscard]] QString RiempiZeri(const QString& testo, int larghezza);
// Without the blanks at both ends; line breaks and tabs stay.
[[nodiscard]] QString Trim(const QString& testo);
// Month number as text to its Italian name in lower case. One leading "0" is dropped, also in the
// caller's variable. Anything but 1 to 12 gives the empty string.
[[nodiscard]] QString NomeMese(QString& mese);
// The reverse, by exact comparison; any other text gives "0".
[[nodiscard]] QString NumeroMese(const QString& nome);

}  // namespace torvi
