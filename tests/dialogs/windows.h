#pragma once

#include "Robot.h"
#include "printQt.h"

#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>
#include <gtest/gtest.h>

/// A window to put dialogs over.
struct MainWindow : QWidget {
  MainWindow() {
    resize(701, 405);
    show();
  }
};

/// A key as the window system delivers it: with the text that it types, if it does, to a list that
/// is dropped down or where the focus is.
inline void key(QWidget &window, Qt::Key code, const QString &text = {},
                Qt::KeyboardModifiers modifiers = {}) {
  QWidget *list = QApplication::activePopupWidget();
  QWidget *focus = (list ? list : &window)->focusWidget();
  QTest::sendKeyEvent(QTest::Click, focus ? focus : &window, code, text, modifiers);
}

/// A text as a dead key or another input method brings it: first shown, then taken over.
inline void compose(QComboBox &box, const QString &text) {
  QInputMethodEvent shown(text, {}), taken;
  taken.setCommitString(text);
  QApplication::sendEvent(&box, &shown);
  QApplication::sendEvent(&box, &taken);
}

/// Waits for a window to close: an access key clicks only when its button has been seen pressed.
inline bool closes(QWidget &window) {
  return QTest::qWaitFor([&] { return !window.isVisible(); });
}

/// A close by the frame of the window.
inline void closeFrame(QWidget &window) { window.windowHandle()->close(); }
