// Keys as an operator presses them: to whatever has the focus, one after the other.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeySequence>
#include <QTest>

#include "comune/finestre.h"

namespace torvi {

// Presses what the script says: characters as they stand, keys by name in braces ("{Tab}", "{F4}",
// "{Alt+E}"). What is pressed waits for what the press before it brought about, unless it is typed
// ahead.
inline void Batti(const QString& copione, bool inAnticipo = false) {
  const auto fuoco = [] {
    for (QWidget* candidato : {QApplication::activePopupWidget(), QApplication::focusWidget(),
                               QApplication::activeWindow()}) {
      if (candidato != nullptr) return candidato;
    }
    throw std::logic_error("no window is active");
  };
  for (qsizetype i = 0; i < copione.size(); ++i) {
    if (copione.at(i) == '{') {
      const qsizetype fine = copione.indexOf('}', i);
      const QKeyCombination tasto = QKeySequence::fromString(copione.mid(i + 1, fine - i - 1))[0];
      QTest::keyClick(fuoco(), tasto.key(), tasto.keyboardModifiers());
      i = fine;
    } else {
      // The test library knows no key for letters beyond ASCII.
      const bool ascii = copione.at(i) < QChar(128);
      const int tasto = ascii ? QTest::asciiToKey(copione.at(i).toLatin1()) : Qt::Key_unknown;
      QTest::sendKeyEvent(QTest::Click, fuoco(), static_cast<Qt::Key>(tasto), copione.mid(i, 1),
                          Qt::NoModifier);
    }
    if (!inAnticipo) QCoreApplication::processEvents();
  }
  if (inAnticipo) QCoreApplication::processEvents();
}

// A step that checks the title of a form and presses keys in it.
inline Passo Forma(const QString& titolo, const QString& copione) {
  return [titolo, copione](QWidget& modale) {
    EXPECT_EQ(modale.windowTitle().toStdString(), titolo.toStdString());
    Batti(copione);
  };
}

}  // namespace torvi
