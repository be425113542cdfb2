// Sequential text files in Windows-1252, their lines closed by CR LF: error files, lists, prints.
#pragma once

#include <QFile>
#include <QString>
#include <limits>
#include <optional>
#include <vector>

#include "archive/file_nuovo.h"
#include "export/registro_uscite.h"

namespace torvi {

enum class Apertura { Lettura, Scrittura, Aggiunta };

// Opens at once and closes by itself. File not there (reading): error 53; folder not there: 76; no
// name, no permission, or a folder in its place: 75. The name is looked up without regard to case.
// Writing fails with 61 on a full disk and 57 on any other fault, and then takes back what it could
// not write whole: a file always ends with a whole block.
//
// A new file is written beside and takes the place of what was there when it is closed, also behind
// a fault: what was written until then stays. A program that is killed leaves what was there, and
// of what it added to a file nothing (see RegistroUscite). A symbolic link stays one, with the file
// that it leads to written so. Devices are written directly, and new files in a folder that takes
// none.
class FileTesto {
 public:
  // One of several files of a run shares their register: closed, it waits for `VaAlPosto`, and
  // without it goes away.
  FileTesto(const QString& percorso, Apertura apertura, RegistroUscite* insieme = nullptr);
  FileTesto(const FileTesto&) = delete;
  FileTesto& operator=(const FileTesto&) = delete;
  ~FileTesto();

  // A line in Windows-1252, with its CR LF.
  void Print(const QString& riga);
  // Bytes as they stand, kept together: they reach the file whole or not at all.
  void ScriviBlocco(QByteArrayView byte);
  // The next line without its end (CR LF, LF or CR), or nothing at the end of the file. A line of
  // more than so many characters: error 5, which names the file and the line.
  [[nodiscard]] std::optional<QString> LineInput(
      qsizetype massimo = std::numeric_limits<qsizetype>::max());
  // Writes what is pending.
  void Svuota();
  // The same, and closes; a failure is thrown here, not in the destructor.
  void Close();
  void VaAlPosto();
  // As the operator knows it.
  [[nodiscard]] QString Percorso() const { return percorso_; }

 private:
  void ApriNuovo(const QString& posto, RegistroUscite* insieme);
  void ApriInCoda(const QString& posto, RegistroUscite* insieme);
  void ApriFile(const QString& nome, Apertura apertura);
  void ChiudiBlocco();
  void RiduciAiBlocchiInteri(qsizetype scritti);
  void SuDisco();
  [[nodiscard]] bool Leggi();

  QString percorso_;
  bool insieme_;
  std::optional<RegistroUscite> registro_;  // of a file of its own that is added to
  std::optional<FileNuovo> nuovo_;          // the one beside
  QFile file_;
  qint64 inizio_ = 0;               // where in the file the pending bytes belong
  QByteArray pendenti_;             // not yet written, or read and not yet given
  std::vector<qsizetype> blocchi_;  // ends of the pending blocks
  qsizetype letti_ = 0;             // pending bytes already given as lines
  qint64 righe_ = 0;                // lines already given
};

}  // namespace torvi
