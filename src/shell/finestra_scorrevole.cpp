#include "shell/finestra_scorrevole.h"

#include <QApplication>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace torvi {
namespace {

constexpr const char* kScorre = "scorre";

// Wants to be as large as what it holds, and can be as small as the screen asks.
class Scorrimento : public QScrollArea {
 public:
  explicit Scorrimento(QWidget& forma) : QScrollArea(&forma) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*prima*/, QWidget* ora) {
      if (ora != nullptr && widget() != nullptr && widget()->isAncestorOf(ora)) {
        ensureWidgetVisible(ora, kMargine, kMargine);
      }
    });
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (oggetto == widget() && evento->type() == QEvent::LayoutRequest) Adatta();
    return QScrollArea::eventFilter(oggetto, evento);
  }

 protected:
  void resizeEvent(QResizeEvent* evento) override {
    Adatta();
    QScrollArea::resizeEvent(evento);
  }

 private:
  // As large as there is room, never smaller than its controls can be. The area's own way would
  // scroll a form with lines that wrap as soon as it has not the size that it would like.
  void Adatta() {
    const QSize minimo = widget()->minimumSizeHint();
    QSize posto = maximumViewportSize();
    if (minimo.height() > posto.height()) posto.rwidth() -= verticalScrollBar()->sizeHint().width();
    if (minimo.width() > posto.width()) {
      posto.rheight() -= horizontalScrollBar()->sizeHint().height();
    }
    widget()->resize(posto.expandedTo(minimo));
  }

  static constexpr int kMargine = 24;  // the label of a field comes into sight with it
};

}  // namespace

void RendiScorrevole(QWidget& forma) {
  if (forma.layout() == nullptr || forma.property(kScorre).toBool()) return;
  QLayout* disposizione = forma.layout();
  forma.setProperty(kScorre, true);
  auto* area = new Scorrimento(forma);
  auto* contenuto = new QWidget;
  // Inside the window first: controls that pass through another window lose their Tab order.
  area->setWidget(contenuto);
  contenuto->setLayout(disposizione);
  auto* esterna = new QVBoxLayout(&forma);
  esterna->setContentsMargins(0, 0, 0, 0);
  esterna->addWidget(area);
}

}  // namespace torvi
