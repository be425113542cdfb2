#include "shell/finestra_cerca_lista.h"

namespace torvi {

// An item that is the text goes before those that only begin so.
void CercaNellaLista(QListWidget& lista, const QString& inizio) {
  const QList<QListWidgetItem*> esatte = lista.findItems(inizio, Qt::MatchFixedString);
  if (!esatte.isEmpty() && !inizio.isEmpty()) {
    lista.setCurrentItem(esatte.constFirst());
    return;
  }
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

}  // namespace torvi
