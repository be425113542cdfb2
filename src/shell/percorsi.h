// Files of the application folder. Names on disk are looked up without regard to case.
#pragma once

#include <QString>
#include <QStringList>

namespace torvi {

// The file or folder of that path as it is spelled on disk: each part that is not there as written
// is sought ignoring case. What is not there at all keeps the spelling it was given.
[[nodiscard]] QString TrovaPercorso(const QString& percorso);
// Where a file is written that is opened under that path: the file behind a symbolic link, absolute
// and without links on the way. What is not there keeps its name.
[[nodiscard]] QString PostoVero(const QString& percorso);
// In mdb/ and in dump/ of the application folder, looked up as above.
[[nodiscard]] QString FileArchivio(const QString& cartellaApplicazione, const QString& nome);
[[nodiscard]] QString CartellaUscite(const QString& cartellaApplicazione);
[[nodiscard]] QString FileUscita(const QString& cartellaApplicazione, const QString& nome);
// Makes mdb/ and dump/ where they are missing. Error 75 names the folder that cannot be made.
void PreparaCartelle(const QString& cartellaApplicazione);
// Names of the files of a folder that match a pattern ("lexxdump*.*"), ignoring case, in
// alphabetical order. A final ".*" matches a name without extension too.
[[nodiscard]] QStringList ElencoFile(const QString& cartella, const QString& modello);
// Only the file's name, never its folders.
[[nodiscard]] QString NomeMaiuscolo(const QString& percorso);

}  // namespace torvi
