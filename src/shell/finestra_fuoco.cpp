#include "shell/finestra_fuoco.h"

#include <QApplication>
#include <QDialog>
#include <QFocusEvent>
#include <QPointer>

namespace torvi {
namespace {

// Keys must find the text selected at once: they may already be waiting.
template <typename Controllo>
void Seleziona(Controllo& campo, Qt::FocusReason motivo) {
  QMetaObject::invokeMethod(
      &campo, &Controllo::selectAll,
      motivo == Qt::MouseFocusReason ? Qt::QueuedConnection : Qt::DirectConnection);
}

class SelezioneConIlFuoco : public QObject {
 public:
  explicit SelezioneConIlFuoco(QLineEdit& campo) : QObject(&campo), campo_(campo) {
    campo.installEventFilter(this);
  }

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() == QEvent::FocusIn) {
      const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
      if (CambiaControllo(motivo)) SelezionaTutto(campo_, motivo);
    }
    return QObject::eventFilter(oggetto, evento);
  }

 private:
  QLineEdit& campo_;
};

}  // namespace

bool CambiaControllo(Qt::FocusReason motivo) {
  return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
         motivo != Qt::MenuBarFocusReason;
}

void SelezionaTutto(QLineEdit& campo, Qt::FocusReason motivo) { Seleziona(campo, motivo); }
void SelezionaTutto(QPlainTextEdit& campo, Qt::FocusReason motivo) { Seleziona(campo, motivo); }

void SelezionaConIlFuoco(QLineEdit& campo) {
  new SelezioneConIlFuoco(campo);  // goes with the field
}

FuocoAlRitorno::FuocoAlRitorno(QWidget& principale)
    : QObject(&principale), principale_(principale) {
  qApp->installEventFilter(this);
}

bool FuocoAlRitorno::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::Hide) return false;
  const auto* dialogo = qobject_cast<QDialog*>(oggetto);
  // The one that was active is so no more when it is told that it is hidden.
  const bool attivo = dialogo != nullptr && QApplication::activeWindow() == nullptr;
  if (!attivo || dialogo->parentWidget() == nullptr) return false;
  // Once all is gone that goes with it.
  const QPointer<QWidget> sotto = dialogo->parentWidget()->window();
  QMetaObject::invokeMethod(
      this,
      [this, sotto] {
        // A window that is still there has its focus from the window manager.
        if (QApplication::activeWindow() != nullptr || (sotto != nullptr && sotto->isVisible()))
          return;
        QWidget* modale = QApplication::activeModalWidget();
        QWidget* finestra = modale != nullptr ? modale : &principale_;
        if (finestra->isVisible()) finestra->activateWindow();
      },
      Qt::QueuedConnection);
  return false;
}

}  // namespace torvi
