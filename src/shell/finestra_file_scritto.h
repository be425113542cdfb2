// What the status bar offers after a print or an export: to open the file, or its folder, with the
// desktop's own program.
#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

#include "shell/dialoghi.h"

namespace torvi {

class OffertaFile : public QWidget {
 public:
  // In the status bar of the window, unseen until there is a file, and while a long run says there
  // how far it has come.
  OffertaFile(QMainWindow& finestra, Dialoghi& dialoghi);

  // The file that was written last; it takes the place of the one before.
  void Offri(const QString& percorso);

 private:
  void Mostra();
  // A file that nothing opens gets a message.
  void Apri(const QString& percorso);

  Dialoghi& dialoghi_;
  QStatusBar& barra_;
  QLabel* nome_;
  QString percorso_;
};

}  // namespace torvi
