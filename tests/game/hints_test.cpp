// The hints and the help, with the tick of their timer in the test's hand.

#include "Stage.h"

#include <QKeyEvent>
#include <QProperty>
#include <QTest>
#include <QTimer>

namespace {

const QString kStart = "Spielhilfe\nDrücke  'Neues Spiel'\nund der Spaß kann losgehen!";
const QString kSetup =
    "Spielhilfe\nSetze Deine Boote ins linke Feld!\n(Einfach ins Feld klicken...)";
const QString kBattle = "Spielhilfe\nVersuche nun, die Boote des Gegners\nim linken Feld zu "
                        "treffen!\n(Einfach ins Feld klicken...)";

struct Hints : Stage {
  QWidget &balloon() { return control("balloon"); }
  /// The hint that is seen.
  QString hint() { return balloon().isVisible() ? balloon().accessibleName() : ""; }
  QTimer &timer() { return *window->findChild<QTimer *>("timTTip"); }
  void tick() { QMetaObject::invokeMethod(&timer(), "timeout"); }
  /// As the window system does it: the window finds the control.
  void moveTo(QPoint point) { QTest::mouseMove(window->windowHandle(), point); }
  void press(QPoint point, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(window->windowHandle(), button, {}, point);
  }
  void cancelNewGame() {
    Robot::answer("cmdAbbruch");
    robot->command("keyNew");
  }
};

TEST_F(Hints, TellWhatToDoNextWhileTheirSwitchIsOne) {
  EXPECT_EQ(hint(), kStart);
  EXPECT_EQ(timer().interval(), 3000);
  tick();
  EXPECT_EQ(hint(), "");
  int changes = 0; // what starts it again shifts the ticks
  const auto watch = timer().bindableActive().addNotifier([&] { ++changes; });
  cancelNewGame();
  EXPECT_EQ(hint(), kSetup) << "after Abbruch as well";
  robot->startBattle(1, draw);
  EXPECT_EQ(hint(), kBattle);
  EXPECT_EQ(changes, 0);
  robot->press(fresh(0));
  EXPECT_EQ(hint(), "");
  for (const char *Help : {"0", "2"}) {
    store.values["Korvel/Options/Help"] = Help;
    open();
    cancelNewGame();
    EXPECT_EQ(hint(), "");
    EXPECT_FALSE(timer().isActive());
  }
  globals.settings.Help = 1; // the options
  cancelNewGame();
  EXPECT_EQ(hint(), kSetup);
  EXPECT_TRUE(timer().isActive());
}

TEST_F(Hints, CloseByAPressOnWhatTakesPresses) {
  newGame(1);
  moveTo({200, 240});
  press(balloon().geometry().center());
  EXPECT_TRUE(control("imgMüll").isEnabled()) << "the field took the press, not the balloon";
  Robot::click(control("imgMüll"));
  const std::tuple<QPoint, Qt::MouseButton, bool> cases[] = {
      {{350, 398}, Qt::LeftButton, false}, // background
      {{289, 354}, Qt::LeftButton, false}, // bin without a boat in work
      {{60, 141}, Qt::RightButton, true},  // left field
      {{60, 141}, Qt::LeftButton, true},   // left field: a boat in work
      {{289, 354}, Qt::LeftButton, true},  // bin
      {{80, 440}, Qt::LeftButton, true},   // counter
      {{350, 66}, Qt::LeftButton, true},   // window
  };
  for (const auto &[point, button, closes] : cases) {
    cancelNewGame();
    press(point, button);
    EXPECT_EQ(hint(), closes ? "" : kSetup) << point.x() << ", " << point.y();
  }
  cancelNewGame();
  Robot::onDialog([&](QDialog &dialog) {
    EXPECT_EQ(hint(), "") << "closed before the command runs";
    dialog.close();
  });
  robot->command("keyTop10");
}

TEST_F(Hints, FollowThePointerAndHideOverTheToolbar) {
  // The start, over the field, a label, the disabled right field, in corners.
  for (const QPoint point : {QPoint(), QPoint(100, 250), QPoint(80, 440), QPoint(500, 250),
                             QPoint(699, 470), QPoint(0, 80), QPoint(699, 80)}) {
    if (!point.isNull())
      moveTo(point);
    const QRect place = balloon().geometry();
    EXPECT_TRUE(QRect(0, 68, 700, 405).contains(place));
    EXPECT_LE(std::abs(place.center().x() - point.x()), point.isNull() ? 700 : place.width());
  }
  moveTo({352, 304});
  EXPECT_TRUE(balloon().geometry().contains(352, 294)) << "the tip above the pointer";
  const std::pair<QPoint, QString> moves[] = {
      {{200, 30}, ""}, {{200, 200}, ""}, {{200, 66}, kStart}}; // toolbar, background, window
  for (const auto &[point, seen] : moves) {
    moveTo(point);
    EXPECT_EQ(hint(), seen);
  }
  moveTo({200, 30});
  tick();
  moveTo({200, 66});
  EXPECT_EQ(hint(), "") << "closed while it was hidden";
}

TEST_F(Hints, HelpOpensOnContentsOrIndex) {
  const std::string book = folder.path().toStdString() + "/Hilfe.qch";
  const std::string contents = "1 " + book, index = "2 " + book;
  robot->command("keyHilfe");
  QTest::keyPress(window.get(), Qt::Key_F1);
  QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_F1, {}, "", true);
  QCoreApplication::sendEvent(window.get(), &repeated);
  EXPECT_EQ(help.log, Log{contents}) << "not before the key is released";
  QTest::keyRelease(window.get(), Qt::Key_F1);
  QTest::keyClick(&control("keyTop10"), Qt::Key_F1);
  help.failure = "kein Buch";
  robot->command("keyHilfe");
  EXPECT_EQ(messages.log, std::vector<QString>{"Korvel|kein Buch"});
  Robot::onDialog([](QDialog &dialog) {
    QTest::keyClick(&dialog, Qt::Key_F1); // stays there
    dialog.close();
  });
  robot->command("keyOptionen");
  window->close();
  EXPECT_EQ(help.log, (Log{contents, index, index, contents, "close"}));
}

} // namespace
