#include "fonti/finestra_anteprima.h"

namespace torvi {

FinestraAnteprima::FinestraAnteprima(QWidget* genitore) : QLabel(genitore) {
  setTextFormat(Qt::RichText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Two lines, so that a citation that grows does not move the form.
  setMinimumHeight(2 * fontMetrics().lineSpacing());
}

void FinestraAnteprima::Mostra(const Anteprima& anteprima) {
  const QString grigio = palette().color(QPalette::PlaceholderText).name(QColor::HexRgb);
  QString testo = anteprima.testo.toHtmlEscaped();
  if (!anteprima.mancanza.isEmpty()) {
    if (!testo.isEmpty()) testo += QLatin1Char(' ');
    testo += QStringLiteral("<span style=\"color:%1\">%2</span>")
                 .arg(grigio, anteprima.mancanza.toHtmlEscaped());
  }
  setText(testo);
  setToolTip(anteprima.testo.toHtmlEscaped());
}

}  // namespace torvi
