#include "Stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace {

using Window = Stage;

TEST_F(Window, StartsIdle) {
  EXPECT_EQ(window->size(), QSize(700, 473));
  EXPECT_EQ(window->Modus(), frmHaupt::Idle);
  EXPECT_EQ(window->grid()->Size(), 2);
  EXPECT_EQ(counters(), std::vector<QString>(12, "?"));
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName0").text(), "Unbekannt");
  EXPECT_FALSE(control("picpFeld").isEnabled() || control("piccFeld").isEnabled());
  EXPECT_FALSE(control("imgMüll").isVisible());
  EXPECT_EQ(globals.ScorePath, folder.path() + "/Score.hsc");
  EXPECT_EQ(sound.log, Log{});
  for (const QWidget *other : QApplication::topLevelWidgets())
    EXPECT_EQ(other->isVisible(), other == window.get()) << "the splash has gone";
  store.values["Korvel/Options/StdSize"] = "3";
  open();
  EXPECT_EQ(control("picpFeld").size(), QSize(323, 259)) << "the stored size counts at once";
}

TEST_F(Window, FieldsGrowAroundTheirCentres) {
  struct {
    int size;
    QRect left, right, name, bin;
  } const places[] = {
      {1, {52, 65, 253, 203}, {396, 65, 253, 203}, {52, 46, 253, 19}, {273, 270, 32, 32}},
      {3, {17, 37, 323, 259}, {361, 37, 323, 259}, {17, 18, 323, 19}, {308, 298, 32, 32}},
      {2, {34, 51, 288, 231}, {378, 51, 288, 231}, {34, 32, 288, 19}, {290, 284, 32, 32}},
  };
  for (const auto &place : places) {
    newGame(place.size);
    EXPECT_EQ(control("picpFeld").geometry(), place.left);
    EXPECT_EQ(control("piccFeld").geometry(), place.right);
    EXPECT_EQ(control("lblName0").geometry(), place.name);
    EXPECT_EQ(control("lblName1").geometry().left(), place.right.left());
    EXPECT_EQ(control("imgMüll").geometry(), place.bin);
    EXPECT_EQ(control("lblcBoote5").geometry(), QRect(608, 360, 33, 25));
  }
}

TEST_F(Window, NewGameTakesNameAndSizeAndCancelNothing) {
  newGame(3);
  EXPECT_EQ(Robot::control<QLabel>(*window, "lblName0").text(), "Jörg");
  robot->press(Cell{1, 1});
  bool asked = false;
  Robot::onDialog([&](QDialog &dialog) {
    asked = Robot::control<QAbstractButton>(dialog, "optSize2").isChecked(); // the last size
    Robot::click(Robot::control(dialog, "optSize0"));
    Robot::click(Robot::control(dialog, "cmdAbbruch"));
  });
  robot->command("keyNew");
  EXPECT_TRUE(asked);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup);
  EXPECT_EQ(window->grid()->Size(), 3);
  EXPECT_TRUE(window->grid()->PBoote(1).hasPoints()) << "the boat in work is still there";
}

// A command that waits for a timer could come during the next turn.
TEST_F(Window, AccessKeysActAtOnce) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  Robot::answer("cmdOK");
  QTest::keyClick(window.get(), Qt::Key_A, Qt::AltModifier);
  EXPECT_EQ(window->grid(), nullptr);
}

TEST_F(Window, LeavingAsksFirst) {
  Robot::onDialog([](QDialog &dialog) {
    EXPECT_EQ(Robot::control<QLabel>(dialog, "lblMeldung").text(),
              "\r\nWillst Du das Spiel wirklich beenden?");
    Robot::click(Robot::control(dialog, "cmdAbbruch"));
  });
  robot->command("keyEnde");
  EXPECT_TRUE(window->isVisible());
  Robot::answer("cmdOK");
  robot->command("keyEnde");
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(sound.log, Log{"start silence"});
}

TEST_F(Window, FleetThatCannotBeMadeEndsTheProgram) {
  struct : RandomDraw {
    double next() override { return 0; } // always a corner
  } stuck;
  robot.reset();
  window = Main(globals, {stuck, sound, store, messages, help}, folder.path());
  robot.emplace(*window);
  newGame(1);
  EXPECT_EQ(messages.log, std::vector<QString>{"Fehler!|Systemfehler\r\n\r\n"
                                               "Computer kann Spielfeld nicht erstellen!"});
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(window->grid(), nullptr);
}

} // namespace
