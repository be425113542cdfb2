// The master archive and the norm catalogue, made from the rows in dati/.
#pragma once

#include <QString>

#include "archive/database.h"
#include "archive/file_nuovo.h"

namespace torvi {

// Where the rows are that come with the program.
[[nodiscard]] QString CartellaDati();

// Every code table filled, the document tables empty with their counters at the start. The file
// appears only when it is complete. It must not exist: error 75. Each table takes its rows from
// the file <table>.csv of the folder: no such file is error 53, and a fault in a row names file and
// line (3421 a value or a row of the wrong form, 3265 an unknown column, 3022 a key given twice).
void CreaMaster(const QString& percorso, const QString& cartella = CartellaDati());
// The same rows into a file that is made here.
void RiempiMaster(const FileNuovo& file, const QString& cartella = CartellaDati());
// A master from which deliveries can be made holds none itself: otherwise error 3011, which names
// the file and says what to do.
void RichiediSenzaConsegna(const Database& master);
// The same for the norm catalogue, from catalogo.csv and catalogo_pd.csv.
void CreaCatalogo(const QString& percorso, const QString& cartella = CartellaDati());

}  // namespace torvi
