// A file under a provisional name beside the one that it shall have: either it appears complete, or
// not at all.
#pragma once

#include <QString>

namespace torvi {

class FileProvvisorio {
 public:
  // A file that has the final name already: error 75. What an earlier run left under the
  // provisional name goes.
  explicit FileProvvisorio(const QString& definitivo);
  FileProvvisorio(const FileProvvisorio&) = delete;
  FileProvvisorio& operator=(const FileProvvisorio&) = delete;
  // Without Conferma the provisional file goes.
  ~FileProvvisorio();

  [[nodiscard]] const QString& Percorso() const { return provvisorio_; }
  // Gives the final name. Never replaces a file: error 75.
  void Conferma();

 private:
  QString definitivo_;
  QString provvisorio_;
  bool confermato_ = false;
};

}  // namespace torvi
