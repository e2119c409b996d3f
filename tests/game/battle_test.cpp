#include "Stage.h"

#include <QTest>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

namespace {

struct Battle : Stage {
  Battle() { startBattle(1); }

  /// The log; the computer's reply is random and stands as `reply`.
  Log sounds() {
    Log log = sound.log;
    for (std::string &entry : log)
      if (entry == "R start Wasser" || entry == "R start Treffer" || entry == "RC start Versenkt")
        entry = "reply";
    return log;
  }

  /// As the window system queues it; the pointer goes on at once.
  void queueClick(const QString &name, QPoint at) {
    QWindow *handle = window->windowHandle();
    const QPoint place = control(name).mapTo(window.get(), at);
    const std::tuple<QEvent::Type, QPoint, Qt::MouseButtons, Qt::MouseButton> events[] = {
        {QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton},
        {QEvent::MouseButtonRelease, place, Qt::NoButton, Qt::LeftButton},
        {QEvent::MouseMove, {9, 460}, Qt::NoButton, Qt::NoButton}};
    for (const auto &[type, point, state, button] : events)
      QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
          handle, point, handle->mapToGlobal(point), state, button, type);
  }
  void queueShot(int BootID) {
    queueClick("picpFeld", QPoint(25 * fresh(BootID).X, 25 * fresh(BootID).Y) - QPoint(12, 12));
  }
  void queueClose() {
    QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::AsynchronousDelivery>(
        window->windowHandle());
  }
  static void letAllRun() {
    for (int i = 0; i < 20; ++i)
      QCoreApplication::processEvents();
  }
};

TEST_F(Battle, TurnPaintsThenWaitsThenReplies) {
  const std::pair<int, const char *> turns[] = {
      {0, "L wait Wasser"}, {1, "L wait Treffer"}, {8, "LC wait Versenkt"}}; // counters before it
  for (const auto &[BootID, heard] : turns) {
    sound.log.clear();
    robot->press(fresh(BootID));
    EXPECT_EQ(sounds(), (Log{heard, "reply"}));
  }
  EXPECT_EQ(counters()[11], "2");
  EXPECT_EQ(std::pair(window->BombenZahl(0), window->BombenZahl(1)), std::pair(3, 3));
}

// Presses that arrive while a turn lets events run stay queued: each is a whole turn of its own,
// and commands wait as well, by mouse or by access key.
TEST_F(Battle, QueuedInputDoesNotNest) {
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  forget();
  const std::function<void(QDialog &)> closeAll = [&](QDialog &dialog) {
    sound.log.push_back(dialog.metaObject()->className());
    Robot::onDialog(closeAll);
    dialog.close();
  };
  Robot::onDialog(closeAll);
  for (const int BootID : {8, 7, 7, 0}) // a boat of one cell sinks: events run twice in its turn
    queueShot(BootID);
  queueClick("keyTop10", {45, 30});
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        window->windowHandle(), type, Qt::Key_A, Qt::AltModifier, "a");
  letAllRun();
  Robot::onDialog([](QDialog &) {});
  Log log = sounds();
  ASSERT_EQ(log.size(), 11u);
  log[4].erase(0, log[4].find("wait")); // whether the field was painted in between
  EXPECT_EQ(log, (Log{"LC wait Versenkt", "reply", "LC wait Versenkt", "reply", "wait Doppelt",
                      "L wait Wasser", "reply", "start Top10", "frmScore", "start silence",
                      "frmMeldung"}));
}

TEST_F(Battle, ACloseWaitsForNoQueuedInput) {
  for (const int BootID : {1, 2, 3})
    queueShot(BootID);
  queueClose();
  letAllRun();
  EXPECT_EQ(sound.log, Log{"start silence"}) << "not even the first turn goes on";

  open();
  startBattle(1);
  Robot::onDialog([](QDialog &topTen) {
    ADD_FAILURE() << "a command goes before a close that came with it";
    topTen.close();
  });
  sound.wording = [&](const std::string &call, const Klang &) {
    if (call == "wait") {
      queueClick("keyTop10", {45, 30});
      queueClose();
    }
    return call;
  };
  robot->press(fresh(0));
  letAllRun();
  EXPECT_EQ(window->grid(), nullptr);
}

TEST_F(Battle, SoundOffKeepsThePaceAndAnotherSizeWaitsForTheNextStart) {
  Robot::onDialog([](QDialog &options) {
    for (const char *name : {"chkSound", "optSize2", "cmdÜbernehmen"})
      Robot::click(Robot::control(options, name));
  });
  robot->command("keyOptionen");
  EXPECT_EQ(window->grid()->Size(), 1);
  robot->press(fresh(0));
  EXPECT_EQ(sound.log, Log{"sleep 348"});
  open();
  EXPECT_EQ(window->grid()->Size(), 3);
}

} // namespace
