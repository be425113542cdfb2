// An application folder of its own for one test, gone with it: mdb/ and dump/, and a delivery with
// the tables of an archive and one row of `TabInfo`.
#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include "archive/database.h"
#include "archive/errore.h"
#include "comune/progetto.h"
#include "shell/stato_globale.h"

namespace torvi {

struct DatiConsegna {
  QString consegna = "A01";
  QString inizio = "12";
  QString centro = "A";
  QString anno = "2001";
};

class CartellaDiProva {
 public:
  CartellaDiProva();
  [[nodiscard]] QString Percorso() const { return cartella_.path(); }
  [[nodiscard]] QString Mdb(const QString& nome) const { return Percorso() + "/mdb/" + nome; }
  [[nodiscard]] QString Dump(const QString& nome) const { return Percorso() + "/dump/" + nome; }
  // An empty delivery in mdb/, opened.
  Database NuovaConsegna(const QString& nome = "A01.MDB", const DatiConsegna& dati = {}) const;
  // The state of a program that has just opened that delivery.
  [[nodiscard]] StatoGlobale StatoConConsegna(const DatiConsegna& dati = {}) const;
  // The same with every code table filled, as a copy of the master archive.
  [[nodiscard]] StatoGlobale StatoConCodici(const DatiConsegna& dati = {}) const;

 private:
  QTemporaryDir cartella_;
};

// Column names and values in turn.
using Valori = std::initializer_list<std::pair<const char*, Campo>>;
// Adds a row to a table. Result: its number.
qint64 Aggiungi(const Database& database, const QString& tabella, Valori valori);
// The rows of a table or statement, values between bars, Null as "-"; without `colonne` those of
// the table in the order of its schema.
[[nodiscard]] QStringList RigheTesto(const Database& database, const QString& origine,
                                     QStringList colonne = {});

// All bytes of a file; a file that is not there fails the test.
[[nodiscard]] QByteArray Byte(const QString& percorso);
void ScriviByte(const QString& percorso, const QByteArray& byte);

// The run-time error that `azione` ends with, as its number, a blank and its description; empty
// where it ends well.
template <typename Azione>
[[nodiscard]] QString ErroreDi(Azione&& azione) {
  try {
    azione();
  } catch (const ErroreEsecuzione& errore) {
    return QStringLiteral("%1 %2").arg(QString::number(errore.Numero()), errore.Descrizione());
  }
  return {};
}
// Its number alone, 0 where it ends well.
template <typename Azione>
[[nodiscard]] int NumeroErrore(Azione&& azione) {
  return ErroreDi(azione).section(' ', 0, 0).toInt();
}

}  // namespace torvi
