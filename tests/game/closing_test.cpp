// The main window is closed at every point where events run or a dialog is open, also by a wish that
// came up while a sound was waiting.

#include "Stage.h"

#include <QApplication>

namespace {

struct Closing : Stage {
  /// The close arrives with the events that the next handler lets run.
  void closeSoon() {
    QMetaObject::invokeMethod(window.get(), [this] { window->close(); }, Qt::QueuedConnection);
  }

  void expectEnded(const std::string &where) {
    EXPECT_FALSE(window->isVisible()) << where;
    EXPECT_EQ(window->grid(), nullptr) << where;
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << where;
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
    for (int i = 1; i <= 8; ++i) // boats and water in turn
      while (window->grid() && window->Modus() == frmHaupt::Battle &&
             !window->grid()->CBoote(i).isSunk()) {
        robot->press(fresh(i));
        if (window->grid())
          robot->press(fresh(0));
      }
    QCoreApplication::processEvents();
    sound.hook = nullptr;
    expectEnded("sound " + std::to_string(last));
  }
}

TEST_F(Closing, WithTheEventsOfEveryHandler) {
  struct {
    const char *where;
    std::function<void()> act;
  } const points[] = {
      {"OK in the new-game dialog",
       [&] {
         Robot::onDialog([&](QDialog &dialog) {
           closeSoon();
           Robot::click(Robot::control(dialog, "cmdOK"));
         });
         robot->command("keyNew");
       }},
      {"a finished boat",
       [&] {
         newGame(1);
         for (int i = 0; i < 3; ++i)
           robot->press(kFleet[i]);
         closeSoon();
         robot->press(kFleet[3]);
       }},
      {"a shot",
       [&] {
         startBattle(1);
         closeSoon();
         robot->press(fresh(0));
       }},
      {"a sinking",
       [&] {
         startBattle(1);
         sound.hook = [&] { closeSoon(); };
         robot->press(fresh(1));
         robot->press(fresh(8));
       }},
      {"the human's victory",
       [&] {
         startBattle(1);
         sound.hook = [&] {
           if (sound.log.back().ends_with("Sieg"))
             closeSoon();
         };
         winAsHuman();
       }},
      {"the computer's victory",
       [&] {
         startBattle(1);
         sound.hook = [&] {
           if (sound.log.back().ends_with("Verloren"))
             closeSoon();
         };
         letComputerWin();
       }},
  };
  for (const auto &[where, act] : points) {
    sound.hook = nullptr;
    open();
    act();
    QCoreApplication::processEvents();
    sound.hook = nullptr;
    expectEnded(where);
  }
}

TEST_F(Closing, WithADialogOpen) {
  const auto closeMain = [&](QDialog &) { window->close(); };
  Robot::onDialog(closeMain);
  robot->command("keyNew");
  expectEnded("the new-game dialog");

  open();
  Robot::onDialog(closeMain);
  robot->command("keyEnde");
  expectEnded("the question of leaving");

  open();
  newGame(1);
  Robot::onDialog(closeMain);
  for (const Cell &cell : kFleet)
    robot->press(cell);
  expectEnded("the question of the fleet");

  open();
  Robot::onDialog(closeMain);
  robot->command("keyTop10");
  expectEnded("the top ten");

  open();
  startBattle(1);
  Robot::onDialog(closeMain);
  winAsHuman();
  expectEnded("the end of a game");

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
