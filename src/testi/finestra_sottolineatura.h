// A wave under the misspelt words of a text while it is typed.
#pragma once

#include <QSyntaxHighlighter>

#include "testi/ortografia.h"

namespace torvi {

class Sottolineatura : public QSyntaxHighlighter {
 public:
  // Goes with the document; the spelling must outlive it.
  Sottolineatura(QTextDocument* documento, const Ortografia& ortografia);

 protected:
  void highlightBlock(const QString& testo) override;

 private:
  const Ortografia& ortografia_;
  QTextCharFormat errata_;
};

}  // namespace torvi
