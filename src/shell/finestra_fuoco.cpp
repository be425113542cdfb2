#include "shell/finestra_fuoco.h"

#include <QFocusEvent>

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

}  // namespace torvi
