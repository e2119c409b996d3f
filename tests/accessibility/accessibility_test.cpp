#include "QtHelpViewer.h"
#include "Stage.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>

#include <cmath>

namespace {

QString read(QWidget &widget, QAccessible::Text kind) {
  return QAccessible::queryAccessibleInterface(&widget)->text(kind);
}

/// From 0.05, black, to 1.05, white.
double luminance(const QColor &c) {
  return 0.2126 * std::pow(c.redF(), 2.2) + 0.7152 * std::pow(c.greenF(), 2.2) +
         0.0722 * std::pow(c.blueF(), 2.2) + 0.05;
}

double contrast(const QColor &a, const QColor &b) {
  return std::max(luminance(a) / luminance(b), luminance(b) / luminance(a));
}

/// Between a text, at its clearest pixel, and what is there without it.
double contrastOf(QWidget &control) {
  const QVariant text = control.property("text");
  const QRect place(control.mapTo(control.window(), QPoint()), control.size());
  const QImage written = control.window()->grab(place).toImage();
  control.setProperty("text", " "); // not empty, which would move an icon
  const QImage behind = control.window()->grab(place).toImage();
  control.setProperty("text", text);
  double most = 0;
  for (int x = 0; x < behind.width(); ++x)
    for (int y = 0; y < behind.height(); ++y)
      most = std::max(most, contrast(written.pixelColor(x, y), behind.pixelColor(x, y)));
  return most;
}

struct Accessibility : Stage {
  Accessibility() { dressApplication(); }

  /// Names, visible focus, contrast of a window and all in it.
  static void check(QWidget &window) {
    QApplication::processEvents(); // an earlier window may still be on its way to the front
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(read(window, QAccessible::Name).trimmed().isEmpty());
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as after a Tab
    for (auto *control : window.findChildren<QWidget *>()) {
      SCOPED_TRACE(window.metaObject()->className() + ('.' + control->objectName()).toStdString());
      if (!control->isVisible() || !control->isEnabled())
        continue;
      const bool takesFocus = control->focusPolicy() & Qt::TabFocus;
      const bool isTold = takesFocus || control->inherits("PictureBox");
      EXPECT_TRUE(!isTold || !read(*control, QAccessible::Name).isEmpty());
      window.setFocus(); // no cursor in a text
      EXPECT_TRUE(control->property("text").toString().isEmpty() || contrastOf(*control) >= 4.5);
      const QImage without = window.grab().toImage();
      control->setFocus();
      EXPECT_TRUE(!takesFocus || window.grab().toImage() != without) << "marks no focus";
    }
  }
};

TEST_F(Accessibility, EveryControlHasANameAVisibleFocusAndReadableTexts) {
  for (const char *command : {"keyNew", "keyOptionen", "keyTop10", "keyEnde"}) {
    Robot::onDialog([](QDialog &dialog) {
      check(dialog);
      dialog.close();
    });
    robot->command(command);
  }
  const QPalette palette = QApplication::palette();
  EXPECT_GE(contrast(palette.highlightedText().color(), palette.highlight().color()), 4.5);
  globals.settings.Help = 0; // a balloon would cover a name
  startBattle(1);            // the counters hold numbers
  check(*window);
  QtHelpViewer viewer;
  for (const auto entry : {HelpViewer::Entry::contents, HelpViewer::Entry::index}) {
    ASSERT_EQ(viewer.show(KORVEL_BOOK, entry), "");
    check(*viewer.window());
  }
}

} // namespace
