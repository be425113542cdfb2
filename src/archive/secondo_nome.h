// A file under a second name, for as long as what is to take its place is not there yet: at no
// moment is there less than one whole file.
#pragma once

#include <QString>

namespace torvi {

// The two names stand for the same file.
[[nodiscard]] bool StessoFile(const QString& a, const QString& b);

class SecondoNome {
 public:
  // A copy where the file system knows no second names. Failures are those of FileNuovo; a
  // `conservato` that is another file is error 75.
  SecondoNome(const QString& percorso, QString conservato);
  SecondoNome(const SecondoNome&) = delete;
  SecondoNome& operator=(const SecondoNome&) = delete;
  // Takes the second name away again, unless it was there before or is to stay.
  ~SecondoNome();
  void Conserva() { fatto_ = false; }

 private:
  QString conservato_;
  bool fatto_ = false;
};

}  // namespace torvi
