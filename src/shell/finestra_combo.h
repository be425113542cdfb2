// Combos of codes that are filled by typing any part of an item.
#pragma once

#include <QComboBox>
#include <QFocusEvent>
#include <QObject>

namespace torvi {

// Makes an editable combo offer the items that hold what is typed, letter case aside.
class ComboDiCodici : public QObject {
 public:
  // Lives as long as the combo.
  ComboDiCodici(QComboBox& combo, QString segnaposto);

  // The text becomes one of the items, the first that fits what was typed, or the placeholder where
  // nothing was typed; what fits no item gives way to what stood there before. Runs by itself when
  // the operator leaves the combo.
  void Conferma();
  // Shows an item or the placeholder.
  void Mostra(const QString& testo);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  [[nodiscard]] QString Scelta(const QString& testo) const;

  QComboBox& combo_;
  QString segnaposto_;
  QString prima_;
};

}  // namespace torvi
