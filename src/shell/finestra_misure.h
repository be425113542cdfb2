// Sizes of windows that suit the words in them and the screen around them.
#pragma once

#include <QMessageBox>
#include <QWidget>

namespace torvi {

// Makes a window smaller where the screen, at its scale, has no room for it.
void AdattaAlloSchermo(QWidget& finestra);
// Makes a box wide enough for its title.
void AllargaPerIlTitolo(QMessageBox& riquadro);

}  // namespace torvi
