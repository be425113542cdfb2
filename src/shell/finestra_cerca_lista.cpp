#include "shell/finestra_cerca_lista.h"

#include <QKeyEvent>

namespace torvi {
namespace {

class PrimaVoce : public QObject {
 public:
  explicit PrimaVoce(QListWidget& lista) : QObject(&lista), lista_(lista) {
    lista.installEventFilter(this);
  }
  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    const bool giu = evento->type() == QEvent::KeyPress &&
                     static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Down;
    if (!giu || lista_.count() == 0 || !lista_.selectedItems().isEmpty()) {
      return QObject::eventFilter(oggetto, evento);
    }
    lista_.setCurrentRow(0, QItemSelectionModel::ClearAndSelect);
    return true;
  }

 private:
  QListWidget& lista_;
};

}  // namespace

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

void SceglieDallaPrima(QListWidget& lista) { new PrimaVoce(lista); }

}  // namespace torvi
