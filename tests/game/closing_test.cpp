// The main window is closed at every point where events run or a dialog is open, also by a wish
// that came up while a sound was waiting.

#include "Stage.h"

#include <QApplication>
#include <QFile>

namespace {

struct Closing : Stage {
  /// The close arrives with the events that the next handler lets run.
  void closeSoon() {
    QMetaObject::invokeMethod(
        window.get(), [this] { window->close(); }, Qt::QueuedConnection);
  }

  void expectEnded(const std::string &where) {
    EXPECT_EQ(window->grid(), nullptr) << where;
    for (const QWidget *widget : QApplication::topLevelWidgets())
      EXPECT_FALSE(widget->isVisible()) << where << ": " << widget->metaObject()->className();
    ASSERT_FALSE(sound.log.empty()) << where;
    EXPECT_EQ(sound.log.back(), "start silence") << where << ": nothing is heard after the end";
    // What arrives late finds nothing and touches nothing.
    robot->command("keyNew");
    Robot::click(control("imgMüll"));
    control("picpFeld").setEnabled(true);
    QCoreApplication::processEvents();
    EXPECT_EQ(sound.log.back(), "start silence") << where;
  }
};

// A fleet of size 1, point by point.
const Cell kFleet[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 3}, {2, 3}, {3, 3}, {5, 3}, {6, 3},
                       {7, 3}, {1, 5}, {2, 5}, {4, 5}, {5, 5}, {7, 5}, {9, 5}, {9, 8}};

TEST_F(Closing, AtEverySoundOfAGame) {
  // Eleven sounds in the set-up, then some two a turn: well into the battle.
  for (int last = 1; last <= 40; ++last) {
    int calls = 0;
    open();
    sound.hook = [&] {
      if (++calls == last)
        closeSoon();
    };
    newGame(1);
    for (const Cell &cell : kFleet) {
      if (!window->grid())
        break;
      if (cell == kFleet[std::size(kFleet) - 1])
        Robot::answer("cmdOK");
      robot->press(cell);
    }
    winAsHuman();
    QCoreApplication::processEvents();
    sound.hook = nullptr;
    expectEnded("sound " + std::to_string(last));
  }
}

TEST_F(Closing, WithTheEventsOfEveryHandler) {
  const auto closeAt = [&](const char *name) {
    return [=, this] {
      if (sound.log.back().ends_with(name))
        closeSoon();
    };
  };
  const std::pair<const char *, std::function<void()>> points[] = {
      {"OK in the new-game dialog",
       [&] {
         Robot::onDialog([&](QDialog &dialog) {
           closeSoon();
           Robot::click(Robot::control(dialog, "cmdOK"));
         });
         robot->command("keyNew");
       }},
      {"the reading of names",
       [&] {
         QFile names(globals.ComboPath);
         EXPECT_TRUE(names.open(QIODevice::WriteOnly) && names.write("Anna\r\nJ\xf6rg\r\n"));
         names.close();
         Robot::onDialog([](QDialog &dialog) {
           ADD_FAILURE() << "a dialog without its game";
           dialog.close();
         });
         closeSoon();
         robot->command("keyNew");
       }},
      {"a shot", [&] { startBattle(1), closeSoon(), robot->press(fresh(0)); }},
      {"the human's victory", [&] { startBattle(1), sound.hook = closeAt("Sieg"), winAsHuman(); }},
      {"the computer's victory",
       [&] { startBattle(1), sound.hook = closeAt("Verloren"), letComputerWin(); }},
  };
  for (const auto &[where, act] : points) {
    open();
    act();
    QCoreApplication::processEvents();
    sound.hook = nullptr;
    expectEnded(where);
  }
}

TEST_F(Closing, WithADialogOpen) {
  const auto closeMain = [&](QDialog &) { window->close(); };
  const auto setFleet = [&] {
    for (const Cell &cell : kFleet)
      robot->press(cell);
  };
  const std::tuple<const char *, std::function<void()>, std::function<void()>> points[] = {
      {"the new-game dialog", [] {}, [&] { robot->command("keyNew"); }},
      {"the options", [] {}, [&] { robot->command("keyOptionen"); }},
      {"the question of leaving", [] {}, [&] { robot->command("keyEnde"); }},
      {"the question of the fleet", [&] { newGame(1); }, setFleet},
      {"the top ten", [] {}, [&] { robot->command("keyTop10"); }},
      {"the end of a game", [&] { startBattle(1); }, [&] { winAsHuman(); }},
  };
  for (const auto &[where, before, act] : points) {
    open();
    before();
    Robot::onDialog(closeMain);
    act();
    expectEnded(where);
  }

  open();
  startBattle(1);
  Robot::onDialog([&](QDialog &end) {
    Robot::onDialog([&](QDialog &topTen) {
      Robot::onDialog(closeMain); // the question of clearing
      Robot::click(Robot::control(topTen, "cmdClear"));
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  letComputerWin();
  expectEnded("the question over the hidden top ten");
}

} // namespace
