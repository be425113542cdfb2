// The URN of an Italian norm: the template of its kind of source, the date and number of the act
// behind it, the name of the region or province in it. An empty URN stays empty in every step.
#pragma once

#include <QString>

namespace torvi {

enum class PassoUrn { Anno, Mese, Giorno, Numero };

// Puts one part of the date, or the number, behind the URN. `valore` is not empty. A URN that
// equals the guard of the step and of the position (first source of a document, or a later one)
// stays as it is. An act of 1947 or before loses its URN.
void EstendiUrn(QString& urn, PassoUrn passo, const QString& valore, bool primaFonte);
// The first place holder ".xxx" becomes "." and the name. No place holder: error 5.
void CompletaUrn(QString& urn, const QString& nome);

}  // namespace torvi
