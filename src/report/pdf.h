// Prints as PDF, by a LibreOffice that is installed.
#pragma once

#include <QString>

namespace torvi {

// Not there: error 53, with a description that says so.
[[nodiscard]] QString ProgrammaPdf();

// Writes a PDF beside a print: in place of the ending "rtf", behind any other. Result: its path. A
// program that writes none: error 51; a PDF that cannot be put in its place: 61 or 75.
QString ConvertiInPdf(const QString& programma, const QString& stampa);

}  // namespace torvi
