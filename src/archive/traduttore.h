// From the system's dialect to the engine's. A lexer reads the statement, a small parser finds its
// clauses, and the result is one statement of the engine. Nothing is looked up in a database.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace torvi {

struct Traduzione {
  QByteArray sql;        // UTF-8, with the `?` of the original in their order
  bool daRighe = false;  // a SELECT
  // The one table that a SELECT reads without DISTINCT and aggregates, so that its rows can be
  // changed in place; the first column of `sql` is then that table's row number, under the name
  // kPrefissoAlias alone, which no alias can bear. Empty otherwise.
  QString tabella;
  QStringList tabelle = {};  // all that it names
};

// A character that belongs to no word, an unclosed literal, a clause out of place: error 3075 with
// the statement in its description.
//
// - "..." and '...' are literals (the quote doubled inside), #m/d/yyyy# the text dd/mm/yyyy, or
//   what matches nothing where there is no such day; True and False are 1 and 0.
// - Without ORDER BY rows come in stored order, by the row numbers of the `Legame...` table where
//   one is named, then of the tables in the order of FROM; the same breaks ties of an ORDER BY.
//   DISTINCT keeps the first of equal rows, and that order.
// - An alias of the select list goes out with the prefix kPrefissoAlias and so never stands in
//   for a missing column.
[[nodiscard]] Traduzione Traduci(QStringView istruzione);

inline constexpr char kPrefissoAlias = '=';

}  // namespace torvi
