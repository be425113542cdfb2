// Runs the built torvi as a process of its own.
#pragma once

#include <QStringList>

namespace torvi {

struct EsitoProgramma {
  int codice = -1;
  QString uscita;
  QString errori;
};

// `torvi` with these arguments, after those of `davanti` ("setpriv", "--reuid=65534"...) if any,
// and what it reads.
[[nodiscard]] EsitoProgramma Torvi(const QStringList& argomenti, const QStringList& davanti = {},
                                   const QByteArray& ingresso = {});

}  // namespace torvi
