#include "shell/finestra_attesa.h"

#include <QApplication>
#include <QEvent>
#include <QStatusBar>

namespace torvi {
namespace {

constexpr int kMillisecondiFraRidisegni = 50;

bool DellOperatore(const QEvent& evento) {
  switch (evento.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::ContextMenu:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::Close:
      return true;
    default:
      return false;
  }
}

}  // namespace

AttesaFinestra::AttesaFinestra(QMainWindow& finestra)
    : finestra_(finestra), barra_(new QProgressBar(finestra.statusBar())) {
  barra_->setObjectName(QStringLiteral("barraAvanzamento"));
  barra_->setMaximumWidth(220);
  barra_->setFormat(QStringLiteral("%v di %m"));
  barra_->hide();
  finestra_.statusBar()->addPermanentWidget(barra_);
}

AttesaFinestra::~AttesaFinestra() = default;

void AttesaFinestra::Imposta(bool attiva) {
  if (attiva && attese_++ == 0) Comincia();
  if (!attiva && attese_ == 1) Finisci();
  if (!attiva && attese_ > 0) --attese_;
}

void AttesaFinestra::Avanza(const QString& cosa, int fatto, int totale) {
  if (attese_ == 0) return;
  if (ultimoRidisegno_.isValid() && ultimoRidisegno_.elapsed() < kMillisecondiFraRidisegni) return;
  finestra_.statusBar()->showMessage(cosa);
  barra_->setRange(0, totale);
  barra_->setValue(fatto);
  barra_->show();
  QCoreApplication::processEvents();
  ultimoRidisegno_.start();
}

bool AttesaFinestra::eventFilter(QObject* /*oggetto*/, QEvent* evento) {
  if (!DellOperatore(*evento) || QApplication::activeModalWidget() != nullptr) return false;
  evento->ignore();
  return true;
}

void AttesaFinestra::Comincia() {
  finestra_.setCursor(Qt::WaitCursor);
  ultimoRidisegno_.invalidate();
  qApp->installEventFilter(this);
}

// What was pressed during the run is met while the filter still stands.
void AttesaFinestra::Finisci() {
  QCoreApplication::processEvents();
  qApp->removeEventFilter(this);
  barra_->hide();
  finestra_.statusBar()->clearMessage();
  finestra_.unsetCursor();
}

}  // namespace torvi
