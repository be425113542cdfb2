// Texts of the archive inside the statements that count them.
#pragma once

#include <QChar>
#include <QString>

namespace torvi {

// What a text stands for between two delimiters of a statement: a doubled delimiter is one, a
// single one breaks the statement (error 3075).
[[nodiscard]] QString TestoCitato(const QString& testo, QChar delimitatore);

}  // namespace torvi
