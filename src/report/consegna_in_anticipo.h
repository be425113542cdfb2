// The next delivery of a batch, opened and read ahead by a second thread while the one before it is
// exported: a small delivery would otherwise spend a quarter of its time on what its documents
// share.
#pragma once

#include <QString>
#include <future>
#include <memory>

#include "export/fonti_in_anticipo.h"
#include "export/tabelle_condivise.h"

namespace torvi {

// An open archive that holds all tables of a delivery, and what was read from it.
struct ConsegnaPronta {
  explicit ConsegnaPronta(const Database& aperto)
      : archivio(aperto), condivise(aperto), fonti(aperto) {}
  Database archivio;
  TabelleCondivise condivise;
  FontiInAnticipo fonti;
};

class ConsegnaInAnticipo {
 public:
  // Begins with the archive at that path, looked up without regard to case. It is only read: a
  // genuine Jet file, which would have to be converted, is left to its turn.
  void Prepara(const QString& percorso);
  // The archive that was begun with, if it is that one. Nothing where it could not be opened or
  // read: who opens it in its turn meets the failure then.
  [[nodiscard]] std::unique_ptr<ConsegnaPronta> Prendi(const QString& percorso);

 private:
  QString percorso_;
  std::future<std::unique_ptr<ConsegnaPronta>> lettura_;
};

}  // namespace torvi
