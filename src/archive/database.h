// An open archive, and the way to its rows. The only way: nothing outside archive/ knows the
// engine.
//
// Statements are written in the system's own dialect ("..." literals, `delete * from`,
// `table!column`, `[a-b]` names, `#m/d/yyyy#` dates, `like` with * ? # [...], True and False, a
// number run into a word) and translated once: a statement with `?` for its values, given again
// with other values, costs a look-up. Text values go in as parameters or through Letterale.
//
// Failures are ErroreEsecuzione: a syntax fault 3075, an unknown column 3061, an unknown table
// 3078, a duplicate key 3022, a read-only file 3027, a lock 3260, a full disk 61, a failing
// device 57.
#pragma once

#include <QList>
#include <QString>
#include <memory>

#include "archive/campo.h"
#include "archive/recordset.h"
#include "archive/riga.h"

namespace torvi {

class Connessione;

enum class Accesso { LetturaScrittura, SolaLettura };

// A handle: copies share the one connection, as the variables of the system do. Never opened, every
// use is error 91; closed, error 3420.
class Database {
 public:
  Database() = default;
  explicit Database(std::shared_ptr<Connessione> connessione);

  // The bare name of a table, or a statement that gives rows.
  [[nodiscard]] Recordset OpenRecordset(const QString& origine,
                                        const QList<Campo>& parametri = {}) const;
  // All rows of a statement at once, where they are few and read more than once.
  [[nodiscard]] std::vector<Riga> LeggiRighe(const QString& istruzione,
                                             const QList<Campo>& parametri = {}) const;
  // How many rows there are in a statement from its "from" on.
  [[nodiscard]] int Conta(const QString& origine) const;
  // A statement that gives none. Result: how many rows it changed.
  qint64 Execute(const QString& istruzione, const QList<Campo>& parametri = {}) const;
  void Close();

  [[nodiscard]] bool Aperto() const;
  // Something is being written that other connections do not see yet.
  [[nodiscard]] bool InUnita() const;
  // The path that OpenDatabase was given.
  [[nodiscard]] QString Name() const;
  // Names of the tables, in the order of their making; and a table's columns.
  [[nodiscard]] QStringList Tabelle() const;
  [[nodiscard]] QStringList Colonne(const QString& tabella) const;

 private:
  friend class UnitaDiScrittura;
  friend QStringList VerificaArchivio(const Database& database);
  [[nodiscard]] Connessione& Connessa() const;
  std::shared_ptr<Connessione> connessione_;
};

// By the file's first bytes; false also for what cannot be read. A genuine Jet file is told by
// EFileJet (jet.h).
[[nodiscard]] bool EFileArchivio(const QString& percorso);

// Opens an archive by its path, told from a genuine Jet file by its first bytes. A Jet file is
// copied into a private database that lives as long as the handle, and can be read only; archive
// commands convert it first (conversione.h). No such file: error 3024; not a database: 3343; in
// use: 3045; no permission: 3051. Nothing is created.
[[nodiscard]] Database OpenDatabase(const QString& percorso,
                                    Accesso accesso = Accesso::LetturaScrittura);

// A text as a quoted literal of the dialect, for the places where a statement is put together.
[[nodiscard]] QString Letterale(const QString& testo);

// One unit on disk: after a power cut or a kill the archive holds the state before it or after it.
// A failure that the program survives keeps the steps already done: leaving the scope by an
// exception writes them too. Units may be nested; the outermost counts.
class UnitaDiScrittura {
 public:
  explicit UnitaDiScrittura(const Database& database);
  UnitaDiScrittura(const UnitaDiScrittura&) = delete;
  UnitaDiScrittura& operator=(const UnitaDiScrittura&) = delete;
  ~UnitaDiScrittura();
  // Writes to disk; a failure to do so is thrown. Without it the destructor does, and is silent.
  void Concludi();

 private:
  std::shared_ptr<Connessione> connessione_;
};

}  // namespace torvi
