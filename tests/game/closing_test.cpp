// The main window is closed where the monkey comes seldom or never: while names are read, and over
// a hidden top ten.

#include "Stage.h"

#include <QApplication>
#include <QFile>

namespace {

struct Closing : Stage {
  void expectEnded(const std::string &where) {
    EXPECT_EQ(window->grid(), nullptr) << where;
    for (const QWidget *widget : QApplication::topLevelWidgets())
      EXPECT_FALSE(widget->isVisible()) << where << ": " << widget->metaObject()->className();
    ASSERT_FALSE(sound.log.empty()) << where;
    EXPECT_EQ(sound.log.back(), "start silence") << where << ": nothing is heard after the end";
  }
  static void closeWithoutItsGame(QDialog &dialog) {
    ADD_FAILURE() << "a dialog without its game";
    dialog.close();
  }
};

TEST_F(Closing, WithTheEventsOfReadingNames) {
  QFile names(globals.ComboPath);
  ASSERT_TRUE(names.open(QIODevice::WriteOnly) && names.write("Anna\r\nJ\xf6rg\r\n"));
  names.close();
  Robot::onDialog(closeWithoutItsGame);
  QMetaObject::invokeMethod(
      window.get(), [this] { window->close(); }, Qt::QueuedConnection);
  robot->command("keyNew");
  QCoreApplication::processEvents();
  expectEnded("the reading of names");
}

TEST_F(Closing, WithADialogOpen) {
  Robot::onDialog([&](QDialog &topTen) {
    Robot::answer("cmdAbbruch");
    Robot::click(Robot::control(topTen, "cmdClear"));
    Robot::onDialog(closeWithoutItsGame); // the top ten must not come again
    window->close();
  });
  robot->command("keyTop10");
  expectEnded("the hidden top ten behind its question");

  open();
  startBattle(1);
  Robot::onDialog([&](QDialog &end) {
    Robot::onDialog([&](QDialog &topTen) {
      Robot::onDialog([&](QDialog &) { window->close(); }); // the question of clearing
      Robot::click(Robot::control(topTen, "cmdClear"));
    });
    Robot::click(Robot::control(end, "cmdJa"));
  });
  letComputerWin();
  expectEnded("the question over the hidden top ten");
}

} // namespace
