// Values that stand in one line of a file.
#pragma once

#include <QString>

namespace torvi {

// Line breaks and zero bytes as blanks, one for one: nothing else would part a line, or end it.
[[nodiscard]] inline QString UnaRiga(QString testo) {
  for (const char16_t c : {u'\r', u'\n', u'\0'}) testo.replace(QChar(c), QLatin1Char(' '));
  return testo;
}

}  // namespace torvi
