// A file in the making. It is written under a passing name beside its place and gets its own name
// only when it is complete, so that a fault on the way leaves what was there before as it was.
#pragma once

#include <QString>

namespace torvi {

class FileNuovo {
 public:
  // Where the finished file goes. Its folder is not there: error 76; cannot be written: error 75.
  explicit FileNuovo(const QString& destinazione);
  FileNuovo(const FileNuovo&) = delete;
  FileNuovo& operator=(const FileNuovo&) = delete;
  // What did not reach its place goes away.
  ~FileNuovo();

  // The passing name; no file of that name exists yet.
  [[nodiscard]] const QString& Percorso() const { return percorso_; }
  // The bytes of another file as the start of this one. No such file: error 53.
  void Copia(const QString& origine);
  // Puts the file in its place. Takes the place of a file that is there: `Sostituisci`; with
  // `Consegna` such a file is error 75 and stays.
  void Consegna();
  void Sostituisci();

 private:
  void Rinomina();
  QString destinazione_;
  QString percorso_;
};

}  // namespace torvi
