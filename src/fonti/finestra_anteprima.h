// The line at the foot of the source entry forms: the citation as it would be composed now, and in
// grey what is still missing.
#pragma once

#include <QLabel>

#include "fonti/anteprima.h"

namespace torvi {

class FinestraAnteprima : public QLabel {
  Q_OBJECT

 public:
  explicit FinestraAnteprima(QWidget* genitore = nullptr);

  void Mostra(const Anteprima& anteprima);
};

}  // namespace torvi
