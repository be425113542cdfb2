// The words and signs of a statement in the system's dialect.
#pragma once

#include <QString>
#include <QStringView>
#include <span>
#include <vector>

namespace torvi {

enum class TipoSimbolo {
  Parola,  // a keyword, a function or a name
  Nome,    // a name that stood in [ ]
  Testo,   // a literal, without its quotes
  Numero,
  Data,  // #m/d/yyyy# as the text dd/mm/yyyy; empty where there is no such day
  Segno,
};

struct Simbolo {
  TipoSimbolo tipo = TipoSimbolo::Segno;
  QString testo;

  // Whether it is this keyword, without regard to case.
  [[nodiscard]] bool E(QLatin1String parola) const;
  [[nodiscard]] bool ESegno(char16_t segno) const;
  [[nodiscard]] bool ENome() const;  // a name, or a word that could be one
};

using Brano = std::span<const Simbolo>;

// A number ends where a letter begins, so that `5and` are two. A character that belongs to no word
// or a literal without an end: error 3075 with the statement.
[[nodiscard]] std::vector<Simbolo> Analizza(QStringView istruzione);

}  // namespace torvi
