#include "shell/finestra_frecce.h"

#include <QKeyEvent>
#include <algorithm>

namespace torvi {

PrimaFreccia::PrimaFreccia(QListWidget& lista) : QObject(&lista), lista_(lista) {
  lista.installEventFilter(this);
}

bool PrimaFreccia::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(oggetto, evento);
  const int tasto = static_cast<QKeyEvent*>(evento)->key();
  const bool freccia = tasto == Qt::Key_Down || tasto == Qt::Key_Up;
  if (!freccia || lista_.count() == 0 || !lista_.selectedItems().isEmpty()) return false;
  lista_.setCurrentRow(std::max(0, lista_.currentRow()));
  return true;
}

}  // namespace torvi
