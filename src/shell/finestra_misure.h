// Sizes of windows that suit the words in them and the screen around them.
#pragma once

#include <QMessageBox>
#include <QWidget>

namespace torvi {

// Makes a window smaller where the screen, at its scale, has no room for it; a dialog whose
// controls do not fit then scrolls.
void AdattaAlloSchermo(QWidget& finestra);
// Whether a control that is hidden leaves its place blank, so that what stands around does not
// jump.
void TieniIlPosto(QWidget& controllo, bool tieni = true);
// Makes a box wide enough for its title.
void AllargaPerIlTitolo(QMessageBox& riquadro);

}  // namespace torvi
