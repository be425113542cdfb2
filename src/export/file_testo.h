// Sequential text files in Windows-1252, their lines closed by CR LF: error files, lists, prints.
#pragma once

#include <QFile>
#include <QString>
#include <optional>
#include <vector>

namespace torvi {

enum class Apertura { Lettura, Scrittura, Aggiunta };

// Opens at once and closes by itself. File not there (reading): error 53; folder not there: 76; no
// name, no permission, or a folder in its place: 75. The name is looked up without regard to case.
// Writing fails with 61 on a full disk and 57 on any other fault, and then takes back what it could
// not write whole: a file always ends with a whole block.
class FileTesto {
 public:
  FileTesto(const QString& percorso, Apertura apertura);
  FileTesto(const FileTesto&) = delete;
  FileTesto& operator=(const FileTesto&) = delete;
  ~FileTesto();

  // A line in Windows-1252, with its CR LF.
  void Print(const QString& riga);
  // Bytes as they stand, kept together: they reach the file whole or not at all.
  void ScriviBlocco(QByteArrayView byte);
  // The next line without its end (CR LF, LF or CR), or nothing at the end of the file.
  [[nodiscard]] std::optional<QString> LineInput();
  // Writes what is pending.
  void Svuota();
  // The same, and closes; a failure is thrown here, not in the destructor.
  void Close();
  [[nodiscard]] QString Percorso() const { return file_.fileName(); }

 private:
  void ChiudiBlocco();
  void RiduciAiBlocchiInteri(qsizetype scritti);
  [[nodiscard]] bool Leggi();

  QFile file_;
  qint64 inizio_ = 0;               // where in the file the pending bytes belong
  QByteArray pendenti_;             // not yet written, or read and not yet given
  std::vector<qsizetype> blocchi_;  // ends of the pending blocks
  qsizetype letti_ = 0;             // pending bytes already given as lines
};

}  // namespace torvi
