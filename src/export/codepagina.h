// The two code pages of the files that leave the program. One character is one byte.
#pragma once

#include <QByteArray>
#include <QString>

namespace torvi {

// CP850, with the nearest character where there is one (curly quotes, dashes, ellipsis...) and '?'
// otherwise. Control characters pass through unchanged.
[[nodiscard]] QByteArray ConvertiOem(QStringView testo);
// Windows-1252, '?' for what it lacks.
[[nodiscard]] QByteArray ConvertiAnsi(QStringView testo);
[[nodiscard]] QString DaAnsi(QByteArrayView byte);

}  // namespace torvi
