// Looking a list up by the beginning of its items, while the operator types.
#pragma once

#include <QLineEdit>
#include <QListWidget>

namespace torvi {

// Selects the first item that begins with the text, letter case aside, sought from the second item
// on and at last in the first. Without one the selection stays.
void CercaNellaLista(QListWidget& lista, const QString& inizio);

// A field beside its list: typing selects an item, a double click or Enter on a selected item
// copies it.
void CollegaCampoALista(QLineEdit& campo, QListWidget& lista);

}  // namespace torvi
