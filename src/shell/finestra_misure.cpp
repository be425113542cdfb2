#include "shell/finestra_misure.h"

#include <QDialog>
#include <QFontMetrics>
#include <QGridLayout>
#include <QScreen>

#include "shell/finestra_scorrevole.h"

namespace torvi {

void AdattaAlloSchermo(QWidget& finestra) {
  constexpr QSize kCornice(24, 64);  // frame and caption bar, which the window does not know
  const QSize posto = finestra.screen()->availableSize() - kCornice;
  const bool entra = finestra.minimumSizeHint().boundedTo(posto) == finestra.minimumSizeHint();
  if (!entra && qobject_cast<QDialog*>(&finestra) != nullptr) RendiScorrevole(finestra);
  finestra.resize(finestra.size().boundedTo(posto));
}

void AllargaPerIlTitolo(QMessageBox& riquadro) {
  constexpr int kPulsantiDelTitolo = 160;
  auto* griglia = qobject_cast<QGridLayout*>(riquadro.layout());
  if (griglia == nullptr) return;
  const int larghezza =
      riquadro.fontMetrics().horizontalAdvance(riquadro.windowTitle()) + kPulsantiDelTitolo;
  griglia->addItem(new QSpacerItem(larghezza, 0), griglia->rowCount(), 0, 1,
                   griglia->columnCount());
}

void TieniIlPosto(QWidget& controllo, bool tieni) {
  QSizePolicy misura = controllo.sizePolicy();
  misura.setRetainSizeWhenHidden(tieni);
  controllo.setSizePolicy(misura);
}

}  // namespace torvi
