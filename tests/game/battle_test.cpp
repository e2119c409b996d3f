#include "Stage.h"

#include <QTest>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

namespace {

using Battle = Stage;

TEST_F(Battle, TurnPaintsThenWaitsThenReplies) {
  startBattle(1);
  const Log replies{"", "R start Wasser", "R start Treffer", "RC start Versenkt"}; // as in `Shot`
  const std::pair<int, const char *> turns[] = {
      {0, "L wait Wasser"}, {1, "L wait Treffer"}, {8, "LC wait Versenkt"}}; // counters before it
  for (const auto &[BootID, heard] : turns) {
    sound.log.clear();
    robot->press(fresh(BootID));
    const auto [X, Y] = window->grid()->LastShot();
    EXPECT_EQ(sound.log, (Log{heard, replies.at(window->grid()->PFeld()(X, Y, 2))}));
  }
}

// Both arrive while a sound is waited for.
TEST_F(Battle, ACloseGoesBeforeACommandThatCameFirst) {
  startBattle(1);
  Robot::onDialog([](QDialog &topTen) {
    ADD_FAILURE() << "the top ten opens";
    topTen.close();
  });
  sound.wording = [&](const std::string &call, const Klang &) {
    using System = QWindowSystemInterface;
    const QPoint keyTop10(225, 31);
    QWindow *handle = window->windowHandle();
    for (const auto &[type, held] : {std::pair(QEvent::MouseButtonPress, Qt::LeftButton),
                                     {QEvent::MouseButtonRelease, Qt::NoButton}})
      System::handleMouseEvent<System::AsynchronousDelivery>(
          handle, keyTop10, handle->mapToGlobal(keyTop10), held, Qt::LeftButton, type);
    System::handleCloseEvent<System::AsynchronousDelivery>(handle);
    sound.wording = nullptr;
    return call;
  };
  robot->press(fresh(0));
  EXPECT_TRUE(QTest::qWaitFor([this] { return !window->grid(); }));
}

} // namespace
