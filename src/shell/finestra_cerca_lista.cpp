#include "shell/finestra_cerca_lista.h"

#include <QApplication>
#include <QKeyEvent>

namespace torvi {

void CercaNellaLista(QListWidget& lista, const QString& inizio) {
  for (int passo = 1; passo <= lista.count(); ++passo) {
    const int posto = passo % lista.count();
    if (!lista.item(posto)->text().startsWith(inizio, Qt::CaseInsensitive)) continue;
    lista.setCurrentRow(posto);
    return;
  }
}

void CollegaCampoALista(QLineEdit& campo, QListWidget& lista) {
  QObject::connect(&campo, &QLineEdit::textChanged, &lista,
                   [&lista](const QString& testo) { CercaNellaLista(lista, testo); });
  for (const auto segnale : {&QListWidget::itemDoubleClicked, &QListWidget::itemActivated}) {
    QObject::connect(&lista, segnale, &campo, [&campo](const QListWidgetItem* scelto) {
      // Enter on a list that is only walked through copies nothing.
      if (scelto->isSelected()) campo.setText(scelto->text());
    });
  }
}

VoceEsatta::VoceEsatta(QListWidget& lista) : QObject(&lista), lista_(lista) {
  lista.installEventFilter(this);
}

bool VoceEsatta::eventFilter(QObject* oggetto, QEvent* evento) {
  if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(oggetto, evento);
  const auto& tasto = static_cast<const QKeyEvent&>(*evento);
  const QString segno = tasto.text();
  const bool comando = (tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0;
  if (comando || segno.isEmpty() || !segno.front().isPrint()) return false;
  // As long as the list itself takes the next sign for a part of the same word.
  if (!ultimo_.isValid() || ultimo_.hasExpired(QApplication::keyboardInputInterval())) {
    scritto_.clear();
  }
  ultimo_.start();
  scritto_ += segno;
  if (tasto.key() == Qt::Key_Space) return false;  // chooses, too
  lista_.keyboardSearch(segno);
  const auto uguali = lista_.findItems(scritto_, Qt::MatchFixedString);
  if (!uguali.isEmpty()) lista_.setCurrentItem(uguali.front());
  return true;
}

}  // namespace torvi
