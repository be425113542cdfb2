// Rows of an archive, one of them current: all columns of a table, read and written in place, or
// the rows that a statement gives.
//
// A table is opened by its bare name, at no cost. It has `Index` and `Seek`, moves in stored order
// or, once an index is set, in the order of the index's first column, and can add, change and
// delete rows. A statement's rows are read one by one as `MoveNext` asks for them, so that a walk
// needs the same memory for ten rows and for a million; going back, and changing rows, keeps all of
// them. They can be changed where the statement reads one table only (otherwise error 3027).
//
// Both start on their first row; without rows, Bof() and Eof() are both true.
#pragma once

#include <memory>
#include <string_view>

#include "archive/campo.h"
#include "archive/riga.h"

namespace torvi {

class Recordset {
 public:
  class Corpo;  // what differs between a table and a statement; private to archive/
  explicit Recordset(std::unique_ptr<Corpo> corpo);
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;
  ~Recordset();

  [[nodiscard]] bool Eof() const;
  [[nodiscard]] bool Bof() const;
  // Moves without rows, or MoveNext past the end: error 3021.
  void MoveFirst();
  void MoveLast();
  void MoveNext();
  void MovePrevious();

  // A column of the current row, or of the row that AddNew or Edit prepares. Case is ignored; of
  // two columns of one name it is the first. No such column: error 3265. No current row: error
  // 3021.
  [[nodiscard]] Campo Fields(std::string_view nome) const;
  // The same by the place of the column, for loops over many rows; Colonna tells it, error 3265.
  [[nodiscard]] Campo Fields(int colonna) const;
  [[nodiscard]] int QuanteColonne() const;
  [[nodiscard]] int Colonna(std::string_view nome) const;
  [[nodiscard]] bool HaCampo(std::string_view nome) const;
  // All columns of the current row, for when it is no longer current.
  [[nodiscard]] Riga Copia() const;
  // Only between AddNew or Edit and Update.
  void Assegna(std::string_view nome, const Campo& valore);

  void AddNew();
  void Edit();
  // Writes the prepared row. A key that is there already: error 3022. After AddNew the current row
  // stays what it was; LastModified names the new one.
  void Update();
  void Delete();

  // Tables only. The index is named as in the schema ("PrimaryKey", "cper"...): error 3015.
  void Index(std::string_view nome);
  // Moves to the first row whose indexed column equals the value. NoMatch tells whether there was
  // none: the current row is then undefined, and reading it is error 3021.
  void Seek(const Campo& chiave);
  [[nodiscard]] bool NoMatch() const;

  // The stored number of a row; setting it moves there, error 3021 where it is gone. For a table,
  // or a statement that reads one.
  [[nodiscard]] qint64 LastModified() const;
  [[nodiscard]] qint64 Bookmark() const;
  void Bookmark(qint64 riga);

  // Also done by the destructor. Later use: error 3420.
  void Close();

 private:
  Corpo& Aperto() const;
  std::unique_ptr<Corpo> corpo_;
};

}  // namespace torvi
