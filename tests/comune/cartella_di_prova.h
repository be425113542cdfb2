// An application folder of its own for one test, gone with it: mdb/ and dump/, and a delivery with
// the tables of an archive and one row of `TabInfo`.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include "archive/database.h"
#include "archive/errore.h"
#include "shell/stato_globale.h"

namespace torvi {

struct DatiConsegna {
  QString consegna = QStringLiteral("A01");
  QString inizio = QStringLiteral("12");
  QString centro = QStringLiteral("A");
  QString anno = QStringLiteral("2001");
};

class CartellaDiProva {
 public:
  CartellaDiProva();
  [[nodiscard]] QString Percorso() const { return cartella_.path(); }
  [[nodiscard]] QString Mdb(const QString& nome) const { return Percorso() + "/mdb/" + nome; }
  [[nodiscard]] QString Dump(const QString& nome) const { return Percorso() + "/dump/" + nome; }
  // An empty delivery in mdb/, opened.
  Database NuovaConsegna(const QString& nome = QStringLiteral("A01.MDB"),
                         const DatiConsegna& dati = {}) const;
  // The state of a program that has just opened that delivery.
  [[nodiscard]] StatoGlobale StatoConConsegna(const DatiConsegna& dati = {}) const;
  // The same with every code table filled, as a copy of the master archive.
  [[nodiscard]] StatoGlobale StatoConCodici(const DatiConsegna& dati = {}) const;

 private:
  QTemporaryDir cartella_;
};

// Adds a row to a table: column names and values in turn. Result: its number.
qint64 Aggiungi(const Database& database, const QString& tabella,
                std::initializer_list<std::pair<const char*, Campo>> valori);

// All bytes of a file; a file that is not there fails the test.
[[nodiscard]] QByteArray Byte(const QString& percorso);
void ScriviByte(const QString& percorso, const QByteArray& byte);

// "../shared/jet/<nome>" seen from the project, or empty where the genuine files are not at hand.
[[nodiscard]] QString FileGenuino(const QString& nome);

// The number of the run-time error that `azione` ends with, 0 where it ends well.
template <typename Azione>
[[nodiscard]] int NumeroErrore(Azione&& azione) {
  try {
    azione();
  } catch (const ErroreEsecuzione& errore) {
    return errore.Numero();
  }
  return 0;
}

}  // namespace torvi
