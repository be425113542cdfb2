// The condition that words set on one column, as every search of the program puts it.
#pragma once

#include <QString>
#include <array>

namespace torvi {

// The whole field is equal to the text; or a part of it holds all words, one of them, or the text
// as it stands. The last three are in the order that the forms offer them.
enum class ModoCampo { Intero, Tutte, AlmenoUna, Sequenza };
// The items of ComboParte.
inline constexpr std::array kVociParte = {ModoCampo::Tutte, ModoCampo::AlmenoUna,
                                          ModoCampo::Sequenza};

// Apostrophes are doubled. Words are cut at every blank, so that two blanks in a row make an empty
// one, which every value matches. `*` and `?` keep their meaning in the parts of a field.
[[nodiscard]] QString CondizioneParole(const QString& colonna, ModoCampo modo, QString parole);

}  // namespace torvi
