#include "QtHelpViewer.h"
#include "Stage.h"
#include "frmStart.h"

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <cmath>
#include <private/qguiapplication_p.h>

namespace {

QString read(QWidget &widget, QAccessible::Text kind) {
  return QAccessible::queryAccessibleInterface(&widget)->text(kind);
}

double luminance(const QColor &colour) {
  const auto linear = [](double c) {
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
         0.0722 * linear(colour.blueF());
}

double contrast(QRgb a, QRgb b) {
  const double first = luminance(a);
  const double second = luminance(b);
  return (std::max(first, second) + .05) / (std::min(first, second) + .05);
}

/// The least contrast between a text and its background, found by taking the text away.
double contrastOf(QWidget &control) {
  const QRect place(control.mapTo(control.window(), QPoint()), control.size());
  const QVariant text = control.property("text");
  control.setProperty("text", text); // not selected
  const QImage written = control.window()->grab(place).toImage();
  control.setProperty("text", " "); // not empty, which would move an icon
  const QImage behind = control.window()->grab(place).toImage();
  control.setProperty("text", text);
  QRgb ink = 0;
  double most = 0;
  double least = 21;
  for (const bool inkIsKnown : {false, true})
    for (int y = 0; y < written.height(); ++y)
      for (int x = 0; x < written.width(); ++x) {
        const QRgb ground = behind.pixel(x, y);
        const double own = contrast(written.pixel(x, y), ground);
        if (!inkIsKnown && own > most)
          most = own, ink = written.pixel(x, y);
        else if (inkIsKnown && written.pixel(x, y) != ground)
          least = std::min(least, contrast(ink, ground));
      }
  return least;
}

struct Accessibility : Stage {
  Accessibility() { dressApplication(); }

  /// Names, visible focus, contrast of a window and all in it.
  static void check(QWidget &window) {
    SCOPED_TRACE(window.metaObject()->className());
    QApplication::processEvents(); // an earlier window may still be on its way to the front
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_FALSE(read(window, QAccessible::Name).trimmed().isEmpty());
    QList<QWidget *> controls = window.findChildren<QWidget *>();
    controls.removeIf(
        [](QWidget *control) { return !control->isVisible() || !control->isEnabled(); });
    const auto trace = [](QWidget &control) {
      return control.metaObject()->className() + (' ' + control.objectName()).toStdString();
    };
    window.setFocus(); // no cursor in a text
    for (QWidget *control : controls) {
      SCOPED_TRACE(trace(*control));
      auto *label = qobject_cast<QLabel *>(control);
      if (label ? !label->text().isEmpty()
                : control->focusPolicy() & Qt::TabFocus || control->inherits("PictureBox")) {
        EXPECT_FALSE(read(*control, QAccessible::Name).isEmpty());
      }
      if (!control->property("text").toString().isEmpty()) {
        EXPECT_GE(contrastOf(*control), 4.5);
      }
      const QPalette palette = control->palette();
      const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
          {QPalette::Text, QPalette::Base},
          {QPalette::PlaceholderText, QPalette::Base},
          {QPalette::HighlightedText, QPalette::Highlight}};
      for (const auto &[ink, ground] : pairs)
        EXPECT_GE(contrast(palette.color(ink).rgb(), palette.color(ground).rgb()), 4.5) << ink;
    }
    window.setAttribute(Qt::WA_KeyboardFocusChange); // as after a Tab
    for (QWidget *control : controls)
      if (control->focusPolicy() & Qt::TabFocus) {
        window.setFocus();
        const QImage without = window.grab().toImage();
        control->setFocus();
        EXPECT_TRUE(window.grab().toImage() != without) << trace(*control) << " marks no focus";
      }
  }
};

TEST_F(Accessibility, EveryControlHasANameAVisibleFocusAndReadableTexts) {
  check(*window);
  for (const char *command : {"keyNew", "keyOptionen", "keyTop10", "keyEnde"}) {
    bool checked = false;
    Robot::onDialog([&](QDialog &dialog) {
      check(dialog);
      checked = true;
      dialog.close();
    });
    robot->command(command);
    EXPECT_TRUE(checked) << command;
  }
  open();
  startBattle(1); // the counters hold numbers
  check(*window);
  frmSieg end(window.get(), {globals.score, *window->grid(), player, {}});
  end.setBild(0, "12");
  end.show();
  check(end);
  QtHelpViewer viewer;
  for (const auto entry : {HelpViewer::Entry::contents, HelpViewer::Entry::index}) {
    ASSERT_EQ(viewer.show(KORVEL_BOOK, entry), "");
    check(*viewer.window());
  }
  frmStart splash("1.0.0");
  splash.show();
  check(splash);
}

TEST_F(Accessibility, FieldsTellTheCellUnderThePointerAsItLooks) {
  startBattle(1);
  const auto told = [&](const char *name, int X, int Y) {
    PictureBox &box = field(name);
    QTest::mouseMove(window->windowHandle(),
                     box.mapTo(window.get(), QPoint(25 * X - 12, 25 * Y - 12)));
    return read(box, QAccessible::Description).toStdString();
  };
  // Nothing of the hidden fleet, all of one's own.
  const Cell hidden = window->grid()->CBoote(1).cell(1);
  const Cell own = window->grid()->PBoote(1).cell(1);
  const auto at = [](const Cell &cell) {
    return "Spalte " + std::to_string(cell.X) + ", Zeile " + std::to_string(cell.Y) + ": ";
  };
  EXPECT_EQ(told("picpFeld", hidden.X, hidden.Y), at(hidden) + "Wasser");
  EXPECT_EQ(told("piccFeld", own.X, own.Y), at(own) + "Boot");
  EXPECT_EQ(read(control("picpFeld"), QAccessible::Description), "") << "left";
  // Screen readers hear of a cell that a shot has changed.
  static int changes = 0;
  QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
  QAccessible::installUpdateHandler([](QAccessibleEvent *event) {
    changes += event->type() == QAccessible::DescriptionChanged &&
               event->object()->objectName() == "picpFeld";
  });
  told("picpFeld", hidden.X, hidden.Y);
  robot->press(hidden);
  EXPECT_EQ(told("picpFeld", hidden.X, hidden.Y), at(hidden) + "Treffer");
  QAccessible::installUpdateHandler(nullptr);
  EXPECT_EQ(changes, 2);
}

} // namespace
