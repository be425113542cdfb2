#include "shell/finestra_cerca_lista.h"

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

}  // namespace torvi
