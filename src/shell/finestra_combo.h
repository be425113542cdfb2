// Combos of codes that are filled by typing any part of an item.
#pragma once

#include <QComboBox>
#include <QFocusEvent>
#include <QObject>
#include <functional>

namespace torvi {

// Makes an editable combo offer the items that hold what is typed, letter case aside.
class ComboDiCodici : public QObject {
 public:
  // Whether a text that fits no item may stand.
  using Ammette = std::function<bool(const QString& testo)>;

  // Lives as long as the combo. Without `ammette` only its items may be chosen.
  ComboDiCodici(QComboBox& combo, QString segnaposto, Ammette ammette = {});

  // The text becomes one of the items, the first that fits what was typed, or the placeholder where
  // nothing was typed; what fits no item and may not stand gives way to what stood there before.
  // Runs by itself when the operator leaves the combo.
  void Conferma();
  // Shows an item, the placeholder, or a text that may stand.
  void Mostra(const QString& testo);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  [[nodiscard]] QString Scelta(const QString& testo) const;

  QComboBox& combo_;
  QString segnaposto_;
  Ammette ammette_;
  QString prima_;
};

}  // namespace torvi
