// The main window is closed where the monkey comes seldom: while names are read, and over a hidden
// top ten.

#include "Stage.h"

#include <QApplication>
#include <QFile>

namespace {

using Closing = Stage;

TEST_F(Closing, LeavesNoDialogAndNoSound) {
  const auto expectEnded = [&] {
    EXPECT_EQ(window->grid(), nullptr);
    for (const QWidget *widget : QApplication::topLevelWidgets())
      EXPECT_FALSE(widget->isVisible()) << widget->metaObject()->className();
    EXPECT_EQ(sound.log.back(), "start silence");
  };
  QFile names(globals.ComboPath);
  ASSERT_TRUE(names.open(QIODevice::WriteOnly) && names.write("Anna\r\nJ\xf6rg\r\n"));
  names.close();
  QMetaObject::invokeMethod(
      window.get(), [this] { window->close(); }, Qt::QueuedConnection);
  Robot::onDialog([](QDialog &dialog) {
    ADD_FAILURE() << "a new game without its window";
    dialog.close();
  });
  robot->command("keyNew");
  expectEnded();

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
  expectEnded();
}

} // namespace
