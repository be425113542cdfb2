#include "shell/finestra_fuoco.h"

namespace torvi {
namespace {

// Keys must find the text selected at once: they may already be waiting.
template <typename Controllo>
void Seleziona(Controllo& campo, Qt::FocusReason motivo) {
  QMetaObject::invokeMethod(
      &campo, &Controllo::selectAll,
      motivo == Qt::MouseFocusReason ? Qt::QueuedConnection : Qt::DirectConnection);
}

}  // namespace

bool CambiaControllo(Qt::FocusReason motivo) {
  return motivo != Qt::ActiveWindowFocusReason && motivo != Qt::PopupFocusReason &&
         motivo != Qt::MenuBarFocusReason;
}

void SelezionaTutto(QLineEdit& campo, Qt::FocusReason motivo) { Seleziona(campo, motivo); }
void SelezionaTutto(QPlainTextEdit& campo, Qt::FocusReason motivo) { Seleziona(campo, motivo); }

}  // namespace torvi
