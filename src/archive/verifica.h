// What is wrong with an archive file.
#pragma once

#include <QStringList>

#include "archive/database.h"

namespace torvi {

// The tables of an archive that the open database lacks; error 3011 names the file and the first.
void RichiediArchivio(const Database& database);
// A line for each fault: damage of the file, tables, columns and indexes that are missing, links
// that point to no row. Empty: the archive is sound.
[[nodiscard]] QStringList VerificaArchivio(const Database& database);

}  // namespace torvi
