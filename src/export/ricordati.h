// What a run made of the rows that it meets over and over, by their keys. The rows that were not
// met for longest give way, so that the memory stays the same however long the run is.
#pragma once

#include <QCache>
#include <memory>

#include "archive/campo.h"

namespace torvi {

template <typename Valore>
class Ricordati {
 public:
  // `leggi` takes the key and gives a unique pointer to the value, empty where no row has that key:
  // so it is with a Null key, too. A failure of it is not remembered.
  template <typename Lettura>
  [[nodiscard]] std::shared_ptr<Valore> Cerca(const Campo& chiave, const Lettura& leggi) {
    if (chiave.Nullo()) return nullptr;
    const qint64 numero = chiave.Intero();
    if (const Condiviso* noto = noti_.object(numero)) return *noto;
    Condiviso nuovo = leggi(numero);
    if (nuovo != nullptr) noti_.insert(numero, std::make_unique<Condiviso>(nuovo).release());
    return nuovo;
  }

 private:
  using Condiviso = std::shared_ptr<Valore>;
  static constexpr int kRicordati = 4096;
  QCache<qint64, Condiviso> noti_{kRicordati};
};

}  // namespace torvi
