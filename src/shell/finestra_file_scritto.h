// What the status bar offers after a print or an export: to open the file, or its folder, with the
// desktop's own program.
#pragma once

#include <QLabel>
#include <QMainWindow>

#include "shell/dialoghi.h"

namespace torvi {

class OffertaFile : public QWidget {
 public:
  // In the status bar of the window, unseen until there is a file. Messages of a long run cover it.
  OffertaFile(QMainWindow& finestra, Dialoghi& dialoghi);

  // The file that was written last; it takes the place of the one before.
  void Offri(const QString& percorso);

 private:
  // A file that nothing opens gets a message.
  void Apri(const QString& percorso);

  Dialoghi& dialoghi_;
  QLabel* nome_;
  QString percorso_;
};

}  // namespace torvi
