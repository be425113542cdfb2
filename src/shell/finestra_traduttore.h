// The few words of the toolkit's own that an operator can meet, in Italian, whatever translations
// the machine has.
#pragma once

#include <QTranslator>

namespace torvi {

class TraduttoreItaliano : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* contesto, const char* testo,
                                  const char* distinzione = nullptr, int n = -1) const override;
};

}  // namespace torvi
