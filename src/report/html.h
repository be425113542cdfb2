// Values as they stand in HTML.
#pragma once

#include <QString>

namespace torvi::html {

// In running text: "&" and "<" as entities.
[[nodiscard]] inline QString Testo(QString valore) {
  return valore.replace(QLatin1Char('&'), QLatin1String("&amp;"))
      .replace(QLatin1Char('<'), QLatin1String("&lt;"));
}

// In an attribute, whichever quotes it has.
[[nodiscard]] inline QString Attributo(const QString& valore) {
  return Testo(valore)
      .replace(QLatin1Char('"'), QLatin1String("&quot;"))
      .replace(QLatin1Char('\''), QLatin1String("&#39;"));
}

}  // namespace torvi::html
