// What is wrong with an archive file.
#pragma once

#include <QStringList>

#include "archive/database.h"

namespace torvi {

// A database that lacks a table of an archive: error 3011, which names the file and the table.
void RichiediArchivio(const Database& database);
// The same for a norm catalogue.
void RichiediCatalogo(const Database& database);
// A line for each fault: damage of the file, tables, columns and indexes that are missing, a
// `TabInfo` of more or less than one row, links and keys that point to no row, with how many and
// the first of them. Empty: the archive is sound.
[[nodiscard]] QStringList VerificaArchivio(const Database& database);

}  // namespace torvi
