// What a run makes of the rows that its documents share, by their keys. A delivery cites most rows
// of such a table, so the first question reads all of them, as far as the memory goes. What is not
// among them is looked up, and where there is no more room the memory starts anew: it stays the
// same however long the run is.
#pragma once

#include <QHash>
#include <functional>

#include "archive/database.h"
#include "archive/errore.h"

namespace torvi {

// Where the rows come from.
struct RigheCondivise {
  QString istruzione;  // gives all of them
  QString condizione;  // what narrows it down to one key, with `?` for it
  const char* chiave;  // column of the key, a whole number
  int massimo = 4096;  // that are kept
};

template <typename Valore>
class Ricordati {
 public:
  using Componi = std::function<Valore(const Recordset&)>;
  Ricordati(const Database& archivio, const RigheCondivise& righe, Componi componi)
      : archivio_(archivio),
        righe_(righe),
        unaSola_(righe.istruzione + righe.condizione),
        componi_(std::move(componi)) {}
  Ricordati(const Ricordati&) = delete;
  Ricordati& operator=(const Ricordati&) = delete;

  // Nothing where no row has that key: so it is with a Null key, too. The value stays good until
  // the next call. A failure of `componi` is thrown each time that the row is asked for, and only
  // then.
  [[nodiscard]] const Valore* Cerca(const Campo& chiave) {
    if (chiave.Nullo()) return nullptr;
    LeggiTutti();
    const qint64 numero = chiave.Intero();
    const auto noto = noti_.constFind(numero);
    if (noto != noti_.constEnd()) return &*noto;
    if (noti_.size() >= righe_.massimo) noti_.clear();
    const Recordset riga = archivio_.OpenRecordset(unaSola_, {numero});
    return riga.Eof() ? nullptr : Ricorda(numero, riga);
  }

  // The first question does it, if nobody did before.
  void LeggiTutti() {
    if (letti_) return;
    letti_ = true;
    Recordset righe = archivio_.OpenRecordset(righe_.istruzione);
    for (; !righe.Eof() && noti_.size() < righe_.massimo; righe.MoveNext()) {
      const Campo chiave = righe.Fields(righe_.chiave);
      if (chiave.Nullo() || noti_.contains(chiave.Intero())) continue;
      try {
        Ricorda(chiave.Intero(), righe);
      } catch (const ErroreEsecuzione&) {
        continue;  // nobody has asked for that row yet
      }
    }
  }

  // The next question reads the rows anew.
  void Dimentica() {
    noti_.clear();
    letti_ = false;
  }

 private:
  const Valore* Ricorda(qint64 numero, const Recordset& riga) {
    return &*noti_.insert(numero, componi_(riga));
  }

  Database archivio_;
  RigheCondivise righe_;
  QString unaSola_;
  Componi componi_;
  bool letti_ = false;
  QHash<qint64, Valore> noti_;
};

}  // namespace torvi
