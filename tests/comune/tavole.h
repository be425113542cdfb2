// Tables of cases in tests/dati: a case a line, its cells between tabs; "#" begins a comment.
#pragma once

#include <QStringList>

namespace torvi {

// A table without a case fails the test.
[[nodiscard]] QList<QStringList> LeggiTavola(const char* nome);
// The whole text of a file of tests/dati.
[[nodiscard]] std::string Dati(const char* nome);

}  // namespace torvi
