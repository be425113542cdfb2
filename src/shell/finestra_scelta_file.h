// The file dialog, drawn by the toolkit itself so that its words are Italian everywhere.
#pragma once

#include <QFileDialog>

#include "shell/dialoghi.h"

namespace torvi {

class SceltaFile : public QFileDialog {
  Q_OBJECT

 public:
  SceltaFile(Dialoghi& dialoghi, const RichiestaFile& richiesta, QWidget* padre);

  // The chosen path, spelled as on disk where the file is there.
  [[nodiscard]] const QString& Scelto() const { return scelto_; }

 public Q_SLOTS:
  void accept() override;

 private:
  void Disponi();
  [[nodiscard]] bool Accettabile(const QString& percorso);

  Dialoghi& dialoghi_;
  RichiestaFile richiesta_;
  QString scelto_;
};

}  // namespace torvi
