#include "testi/finestra_sottolineatura.h"

namespace torvi {

Sottolineatura::Sottolineatura(QTextDocument* documento, const Ortografia& ortografia)
    : QSyntaxHighlighter(documento), ortografia_(ortografia) {
  errata_.setUnderlineStyle(QTextCharFormat::WaveUnderline);
  errata_.setUnderlineColor(Qt::red);
}

void Sottolineatura::highlightBlock(const QString& testo) {
  for (const Tratto& errata : ortografia_.Errate(testo)) {
    setFormat(static_cast<int>(errata.inizio), static_cast<int>(errata.lunghezza), errata_);
  }
}

}  // namespace torvi
