#include "shell/finestra_scorrevole.h"

#include <QApplication>
#include <QLayout>
#include <QScrollArea>
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
    setWidgetResizable(true);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget* /*prima*/, QWidget* ora) {
      if (ora != nullptr && widget() != nullptr && widget()->isAncestorOf(ora)) {
        ensureWidgetVisible(ora, kMargine, kMargine);
      }
    });
  }
  [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }

 private:
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
