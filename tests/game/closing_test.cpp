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
  Cell last;
  const auto closeMain = [&](QDialog &) { window->close(); };
  const std::tuple<const char *, std::function<void()>, std::function<void()>> points[] = {
      {"the new-game dialog", [] {}, [&] { robot->command("keyNew"); }},
      {"the options", [] {}, [&] { robot->command("keyOptionen"); }},
      {"the question of leaving", [] {}, [&] { robot->command("keyEnde"); }},
      {"the question of the fleet",
       [&] {
         newGame(1);
         last = robot->setFleetButOne(draw);
       },
       [&] { robot->press(last); }},
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
  Robot::onDialog([&](QDialog &topTen) {
    Robot::answer("cmdAbbruch");
    Robot::click(Robot::control(topTen, "cmdClear"));
    Robot::onDialog([](QDialog &dialog) {
      ADD_FAILURE() << "the top ten comes again without its game";
      dialog.close();
    });
    window->close();
  });
  robot->command("keyTop10");
  expectEnded("the hidden top ten behind its question");

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
