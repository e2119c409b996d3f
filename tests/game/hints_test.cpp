// The hints and the help, with the tick of their timer in the test's hand.

#include "Stage.h"

#include <QMouseEvent>
#include <QTest>
#include <QTimer>

namespace {

const QString kStart = "Spielhilfe\nDrücke  'Neues Spiel'\nund der Spaß kann losgehen!";
const QString kSetup =
    "Spielhilfe\nSetze Deine Boote ins linke Feld!\n(Einfach ins Feld klicken...)";
const QString kBattle = "Spielhilfe\nVersuche nun, die Boote des Gegners\nim linken Feld zu "
                        "treffen!\n(Einfach ins Feld klicken...)";

struct Hints : Stage {
  Hints() { EXPECT_TRUE(QTest::qWaitForWindowActive(window.get())); }

  QWidget *balloon() { return window->findChild<QWidget *>("balloon"); }
  /// The hint that is seen.
  QString hint() { return balloon()->isVisible() ? balloon()->accessibleName() : ""; }
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

TEST_F(Hints, TellWhatToDoNext) {
  EXPECT_EQ(hint(), kStart);
  EXPECT_TRUE(timer().isActive());
  EXPECT_EQ(timer().interval(), 3000);
  tick();
  EXPECT_EQ(hint(), "");
  EXPECT_TRUE(timer().isActive()) << "it goes on ticking";
  cancelNewGame();
  EXPECT_EQ(hint(), kSetup) << "after Abbruch as well";
  robot->startBattle(1, draw);
  EXPECT_EQ(hint(), kBattle);
  robot->press(fresh(0));
  EXPECT_EQ(hint(), "");
}

TEST_F(Hints, OpeningDoesNotShiftTheTicks) {
  timer().setTimerType(Qt::PreciseTimer);
  timer().start();
  QTest::qWait(20);
  const int left = timer().remainingTime();
  EXPECT_LT(left, 3000);
  cancelNewGame();
  EXPECT_LE(timer().remainingTime(), left);
}

TEST_F(Hints, AppearOnlyWhileTheirSwitchIsOne) {
  for (const char *Help : {"0", "2"}) {
    store.values["Korvel/Options/Help"] = Help;
    open();
    newGame(1);
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
  const int top = 68; // of the background
  const std::tuple<const char *, QPoint, bool> cases[] = {
      {"background", {350, top + 330}, false},
      {"right field", {500, top + 150}, false},
      {"bin without a boat in work", {289, top + 286}, false},
      {"left field, right button", {60, top + 73}, true}, // below, with that button
      {"left field", {60, top + 73}, true},
      {"bin", {289, top + 286}, true},
      {"boat", {100, top + 328}, true},
      {"class name", {80, top + 350}, true},
      {"counter", {80, top + 372}, true},
      {"computer's counter", {424, top + 372}, true},
      {"name", {60, top + 55}, true},
      {"computer's name", {450, top + 55}, true},
      {"window", {350, 66}, true},
  };
  for (const auto &[where, point, closes] : cases) {
    SCOPED_TRACE(where);
    if (QString(where) == "bin") { // enabled by a boat in work
      press({60, top + 73});
      EXPECT_TRUE(control("imgMüll").isEnabled());
    }
    Robot::onDialog([](QDialog &dialog) { dialog.close(); });
    robot->command("keyNew");
    ASSERT_EQ(hint(), kSetup);
    press(point, QString(where).contains("right button") ? Qt::RightButton : Qt::LeftButton);
    EXPECT_EQ(hint(), closes ? "" : kSetup);
  }
  cancelNewGame();
  Robot::onDialog([&](QDialog &dialog) {
    EXPECT_EQ(hint(), "") << "closed before the command runs";
    dialog.close();
  });
  robot->command("keyTop10");
}

TEST_F(Hints, FollowThePointerAndHideOverTheToolbar) {
  const auto place = [&] { return balloon()->geometry(); };
  const QRect belowToolbar = window->rect().adjusted(0, 68, 0, 0);
  EXPECT_TRUE(belowToolbar.contains(place())) << "begins with the pointer outside";
  moveTo({350, 300});
  EXPECT_TRUE(place().contains(QPoint(350, 290))) << "above the pointer";
  moveTo({352, 304}); // and over the field, a label, the disabled right field
  EXPECT_TRUE(place().contains(QPoint(352, 294)));
  for (const QPoint point : {QPoint(100, 250), QPoint(80, 440), QPoint(500, 250), QPoint(699, 470),
                             QPoint(0, 80), QPoint(699, 80)}) {
    moveTo(point);
    EXPECT_LE(std::abs(place().center().x() - point.x()), place().width());
    EXPECT_TRUE(belowToolbar.contains(place())) << "whole inside the window";
  }
  moveTo({200, 30});
  EXPECT_EQ(hint(), "") << "hidden over the toolbar";
  press({600, 30}); // on no button
  moveTo({200, 200});
  EXPECT_EQ(hint(), "");
  moveTo({200, 66});
  EXPECT_EQ(hint(), kStart) << "back on the window's own surface";
  moveTo({200, 30});
  tick();
  moveTo({200, 66});
  EXPECT_EQ(hint(), "") << "closed while it was hidden";
}

TEST_F(Hints, TakeNoPresses) {
  newGame(1);
  moveTo({200, 240});
  ASSERT_EQ(hint(), kSetup);
  EXPECT_EQ(window->childAt(balloon()->geometry().center()), &control("picpFeld"));
}

TEST_F(Hints, GoWithTheWindow) {
  window->close();
  EXPECT_EQ(balloon(), nullptr);
  EXPECT_FALSE(timer().isActive());
  moveTo({200, 66});
  EXPECT_EQ(help.log, Log{"close"});
}

TEST_F(Hints, HelpOpensOnContentsOrIndex) {
  const std::string book = globals.HelpPath.toStdString();
  EXPECT_EQ(globals.HelpPath, folder.path() + "/Hilfe.qch");
  robot->command("keyHilfe");
  QTest::keyPress(window.get(), Qt::Key_F1);
  EXPECT_EQ(help.log, Log{"1 " + book});
  QTest::keyRelease(window.get(), Qt::Key_F1);
  control("keyTop10").setFocus();
  QTest::keyClick(&control("keyTop10"), Qt::Key_F1);
  EXPECT_EQ(help.log, (Log{"1 " + book, "2 " + book, "2 " + book}));
  EXPECT_TRUE(messages.log.empty());
  help.failure = "kein Buch";
  robot->command("keyHilfe");
  EXPECT_EQ(messages.log, std::vector<QString>{"Korvel|kein Buch"});
  Robot::onDialog([&](QDialog &dialog) {
    QTest::keyClick(&dialog, Qt::Key_F1);
    dialog.close();
  });
  robot->command("keyOptionen");
  EXPECT_EQ(help.log.size(), 4u) << "F1 in a dialog stays there";
}

} // namespace
