#include "fonti/finestra_anteprima.h"

namespace torvi {
namespace {

// Half way between the text and what it stands on: the palette's own grey is a transparent black.
[[nodiscard]] QString Grigio(const QPalette& tavolozza) {
  const QColor testo = tavolozza.color(QPalette::WindowText);
  const QColor fondo = tavolozza.color(QPalette::Window);
  const auto mezzo = [](int uno, int altro) { return (uno + altro) / 2; };
  return QColor(mezzo(testo.red(), fondo.red()), mezzo(testo.green(), fondo.green()),
                mezzo(testo.blue(), fondo.blue()))
      .name();
}

}  // namespace

FinestraAnteprima::FinestraAnteprima(QWidget* genitore) : QLabel(genitore) {
  setTextFormat(Qt::RichText);
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // Two lines, so that a citation that grows does not move the form.
  setMinimumHeight(2 * fontMetrics().lineSpacing());
}

void FinestraAnteprima::Mostra(const Anteprima& anteprima) {
  QString testo = anteprima.testo.toHtmlEscaped();
  if (!anteprima.mancanza.isEmpty()) {
    if (!testo.isEmpty()) testo += QLatin1Char(' ');
    testo += QStringLiteral("<span style=\"color:%1\">%2</span>")
                 .arg(Grigio(palette()), anteprima.mancanza.toHtmlEscaped());
  }
  setText(testo);
  setToolTip(anteprima.testo.toHtmlEscaped());
}

}  // namespace torvi
