// The two code pages of the files that leave the program. One character is one byte.
#pragma once

#include <QByteArray>
#include <QString>
#include <string>

namespace torvi {

// CP850, with the nearest character where there is one (curly quotes, dashes, ellipsis...) and '?'
// otherwise. Control characters pass through unchanged.
[[nodiscard]] QByteArray ConvertiOem(QStringView testo);
// The same behind what is there.
void AccodaOem(std::string& byte, QStringView testo);
// Windows-1252, '?' for what it lacks.
[[nodiscard]] QByteArray ConvertiAnsi(QStringView testo);
// The same behind what is there.
void AccodaAnsi(QByteArray& byte, QStringView testo);
[[nodiscard]] QString DaAnsi(QByteArrayView byte);

}  // namespace torvi
