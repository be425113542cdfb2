// What a fuzz target is given, as a reader of files wants it.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <QByteArrayView>
#include <QString>
#include <cstdlib>

#include "archive/errore.h"

namespace torvi {

// A file in memory, gone with it.
class FileInMemoria {
 public:
  explicit FileInMemoria(QByteArrayView byte) : file_(memfd_create("ingresso", MFD_CLOEXEC)) {
    if (write(file_, byte.data(), static_cast<std::size_t>(byte.size())) != byte.size()) abort();
  }
  FileInMemoria(const FileInMemoria&) = delete;
  FileInMemoria& operator=(const FileInMemoria&) = delete;
  ~FileInMemoria() { close(file_); }
  [[nodiscard]] QString Percorso() const { return QStringLiteral("/proc/self/fd/%1").arg(file_); }

 private:
  int file_;
};

// Runs `lettura`; a run-time error is an answer like any other, all else is a fault. Result: 0.
template <typename Lettura>
int Prova(const Lettura& lettura) {
  try {
    lettura();
  } catch (const ErroreEsecuzione&) {
    return 0;
  }
  return 0;
}

}  // namespace torvi
