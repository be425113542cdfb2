// A file in the making. It is written under a passing name beside its place and gets its own name
// only when it is complete, so that a fault on the way leaves what was there before as it was. As
// long as it is made it is locked: one that nobody holds was left by a program that was killed.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <functional>

namespace torvi {

class FileNuovo {
 public:
  // Where the finished file goes; behind a symbolic link, where the link leads. What killed
  // programs left beside that place goes away. Its folder is not there: error 76; cannot be
  // written, the place is a folder or its name too long: error 75; no room for a file: 61.
  explicit FileNuovo(const QString& destinazione);
  FileNuovo(const FileNuovo&) = delete;
  FileNuovo& operator=(const FileNuovo&) = delete;
  // What did not reach its place goes away.
  ~FileNuovo();

  // The passing name: an empty file, made here, which whoever fills it opens by name.
  [[nodiscard]] const QString& Percorso() const { return percorso_; }
  [[nodiscard]] const QString& Destinazione() const { return destinazione_; }
  // The bytes of another file as the start of this one. No such file: error 53.
  void Copia(const QString& origine);
  void ScriviByte(QByteArrayView byte) const;
  // Runs what fills the file by its passing name. A failure is told of the name that the operator
  // knows, and is 61 where the disk is full, whatever met it first.
  void Riempi(const std::function<void()>& lavoro) const;
  // Puts the file in its place. Takes the place of a file that is there: `Sostituisci`; with
  // `Consegna` such a file is error 75 and stays.
  void Consegna();
  void Sostituisci();
  // The same, and what was there stays beside as "<precedente>.precedente", numbered from 2 on
  // where that name is taken. `precedente` is the destination, or the file that it is in another
  // spelling. Result: the name it has now, empty where there was none.
  [[nodiscard]] QString SostituisciConservando(const QString& precedente);

 private:
  void Rinomina();
  void Chiudi();
  QString destinazione_;
  QString percorso_;
  int file_ = -1;
};

// Files in the making that killed programs left in a folder go away, whatever their place was to
// be.
void TogliFileLasciati(const QString& cartella);

}  // namespace torvi
