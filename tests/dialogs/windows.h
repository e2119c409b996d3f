#pragma once

#include "Robot.h"
#include "printQt.h"

#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

/// A key as the window system delivers it: with the text that it types, if it does, to a list that
/// is dropped down or where the focus is.
inline void key(QWidget &window, QKeyCombination keys, const QString &text = {}) {
  QWidget *list = QApplication::activePopupWidget();
  QWidget *focus = (list ? list : &window)->focusWidget();
  QTest::sendKeyEvent(QTest::Click, focus ? focus : &window, keys.key(), text,
                      keys.keyboardModifiers());
}

/// Deeds in a row: `frame` closes by the frame, a name clicks its control, all else is a key.
inline void act(QWidget &window, const QString &deeds) {
  for (const QString &deed : deeds.split(' '))
    if (deed == "frame")
      window.windowHandle()->close();
    else if (auto *control = window.findChild<QWidget *>(deed))
      Robot::click(*control);
    else
      key(window, QKeySequence(deed)[0]);
}

/// A text as a dead key or another input method brings it: first shown, then taken over.
inline void compose(QComboBox &box, const QString &text) {
  QInputMethodEvent shown(text, {}), taken;
  taken.setCommitString(text);
  QApplication::sendEvent(&box, &shown);
  QApplication::sendEvent(&box, &taken);
}
