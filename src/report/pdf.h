// Prints as PDF, by a LibreOffice that is installed.
#pragma once

#include <QString>

namespace torvi {

// Not there: error 53, with a description that says so.
[[nodiscard]] QString ProgrammaPdf();

// Writes a PDF beside a print: under its name where that ends in rtf, htm or html, otherwise with
// ".pdf" behind it. Result: its path. A program that writes none: error 51.
QString ConvertiInPdf(const QString& programma, const QString& stampa);

}  // namespace torvi
