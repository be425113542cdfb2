// Italian phrases put together from a noun with its article.
#pragma once

#include <QString>
#include <span>

namespace torvi::esempio {

struct Ricambio {
  QStringView segno;  // "{T}"
  QString testo;
};

// "il giudice" behind "di", "a", "su" or "in": "del giudice"...
[[nodiscard]] QString ConPreposizione(QStringView preposizione, QStringView nome);
[[nodiscard]] QString SenzaArticolo(QStringView nome);
[[nodiscard]] QString Maiuscola(const QString& testo);
// The marks {T}, {DI}, {SU}, {A}, {IN}, {S} become the subject: with its article, behind a
// preposition, without article. {Tm} begins with a capital.
[[nodiscard]] QString ConTema(QStringView frase, QStringView tema);
[[nodiscard]] QString Sostituisci(QString frase, std::span<const Ricambio> ricambi);

}  // namespace torvi::esempio
