// Enter on a form without a default button.
#pragma once

#include <QDialog>
#include <QKeyEvent>

namespace torvi {

// Enter presses the button that has the focus; elsewhere it moves on like Tab. False for any other
// key.
bool InvioAvanti(QDialog& forma, const QKeyEvent& evento);

}  // namespace torvi
