// Looking a list up by the beginning of its items, while the operator types.
#pragma once

#include <QElapsedTimer>
#include <QLineEdit>
#include <QListWidget>
#include <QObject>

namespace torvi {

// Selects the first item that begins with the text, letter case aside, sought from the second item
// on and at last in the first. Without one the selection stays.
void CercaNellaLista(QListWidget& lista, const QString& inizio);

// A field beside its list: typing selects an item, a double click or Enter on a selected item
// copies it.
void CollegaCampoALista(QLineEdit& campo, QListWidget& lista);

// Typing in a list itself: an item that is all of what is typed, letter case aside, goes before one
// that only begins so.
class VoceEsatta : public QObject {
 public:
  // Lives as long as the list.
  explicit VoceEsatta(QListWidget& lista);
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QListWidget& lista_;
  QString scritto_;
  QElapsedTimer ultimo_;
};

}  // namespace torvi
