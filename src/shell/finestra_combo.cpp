#include "shell/finestra_combo.h"

#include <QCompleter>
#include <QLineEdit>

#include "shell/finestra_fuoco.h"

namespace torvi {
namespace {

// Where Tab leads from a control.
QWidget* CampoSeguente(const QWidget& campo) {
  QWidget* seguente = campo.nextInFocusChain();
  while (seguente != &campo &&
         (!seguente->isVisible() || !seguente->isEnabled() || seguente->focusProxy() != nullptr ||
          (seguente->focusPolicy() & Qt::TabFocus) == 0)) {
    seguente = seguente->nextInFocusChain();
  }
  return seguente;
}

}  // namespace

ComboDiCodici::ComboDiCodici(QComboBox& combo, QString segnaposto, Ammette ammette)
    : QObject(&combo),
      combo_(combo),
      segnaposto_(std::move(segnaposto)),
      ammette_(std::move(ammette)) {
  QCompleter* completamento = combo.completer();
  completamento->setCompletionMode(QCompleter::PopupCompletion);
  completamento->setFilterMode(Qt::MatchContains);
  completamento->setCaseSensitivity(Qt::CaseInsensitive);
  combo.installEventFilter(this);
  Mostra(segnaposto_);
}

void ComboDiCodici::Mostra(const QString& testo) {
  const int posto = combo_.findText(testo, Qt::MatchExactly | Qt::MatchCaseSensitive);
  combo_.setCurrentIndex(posto);
  if (posto < 0) combo_.setEditText(testo);
  combo_.lineEdit()->setCursorPosition(0);
  prima_ = testo;
}

void ComboDiCodici::Conferma() {
  const QString testo = combo_.currentText();
  if (testo != prima_) Mostra(Scelta(testo));
}

QString ComboDiCodici::Scelta(const QString& testo) const {
  if (testo.isEmpty() || testo == segnaposto_) return segnaposto_;
  for (const auto modo : {Qt::MatchFixedString, Qt::MatchStartsWith, Qt::MatchContains}) {
    const int posto = combo_.findText(testo, modo);
    if (posto >= 0) return combo_.itemText(posto);
  }
  return ammette_ && ammette_(testo) ? testo : prima_;
}

bool ComboDiCodici::eventFilter(QObject* oggetto, QEvent* evento) {
  const bool entra = evento->type() == QEvent::FocusIn;
  if (!entra && evento->type() != QEvent::FocusOut) return QObject::eventFilter(oggetto, evento);
  const Qt::FocusReason motivo = static_cast<QFocusEvent*>(evento)->reason();
  if (CambiaControllo(motivo)) {
    if (entra) {
      SelezionaTutto(*combo_.lineEdit(), motivo);
    } else {
      const int voce = combo_.currentIndex();
      Conferma();
      // The choice may have brought up the field that comes next.
      if (motivo == Qt::TabFocusReason && voce != combo_.currentIndex() && combo_.isVisible()) {
        CampoSeguente(combo_)->setFocus(motivo);
      }
    }
  }
  return QObject::eventFilter(oggetto, evento);
}

}  // namespace torvi
