// Choosing from a list by the arrow keys alone.
#pragma once

#include <QListWidget>
#include <QObject>

namespace torvi {

// In a list where nothing is chosen yet the first arrow chooses the item at hand, not the one after
// it, which a list of one item does not have.
class PrimaFreccia : public QObject {
 public:
  // Lives as long as the list.
  explicit PrimaFreccia(QListWidget& lista);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QListWidget& lista_;
};

}  // namespace torvi
