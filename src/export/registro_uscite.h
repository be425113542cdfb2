// What keeps the outputs of a run together. Beside them stands, for as long as the run lasts, a
// small hidden file that says what each was before. Where it stays the run was killed, and who next
// writes or reads outputs in that folder finishes for it: a set of new files that was complete goes
// to its places, one that was not goes away, and what was being added to a file is cut off.
//
// It is meant for runs that are killed: after a power cut what was being added may stay.
#pragma once

#include <QByteArray>
#include <QString>

namespace torvi {

class RegistroUscite {
 public:
  // Where the file stands. A folder that is not there or cannot be written: none is kept.
  explicit RegistroUscite(const QString& cartella);
  RegistroUscite(const RegistroUscite&) = delete;
  RegistroUscite& operator=(const RegistroUscite&) = delete;
  // The run is over, all its files are as they have to be.
  ~RegistroUscite();

  // To be told of each file before a byte of it is written: that it is written beside, under the
  // name `passaggio`, or that it is added to, and whether it was there. Another program that is at
  // work on the same file: error 55. What a killed run left that cannot be finished: error 57.
  void SiRinnova(const QString& posto, const QString& passaggio);
  void SiAccoda(const QString& posto, bool cera);
  // All files are whole and on disk; those beside go to their places now, come what may.
  void Completo();

 private:
  void Apri();
  void Annota(const QByteArray& voce, const QString& posto);

  QString cartella_;
  QString percorso_;  // empty: none is kept
  QString primo_;     // the file that failures are told of
  int file_ = -1;
};

// Finishes what killed runs left in a folder that can be written. What cannot be done: error 57,
// which names the file.
void RipristinaUscite(const QString& cartella);

}  // namespace torvi
