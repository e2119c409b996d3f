#include "Stage.h"

#include <QTest>
#include <QWindow>
#include <qpa/qwindowsysteminterface.h>

namespace {

using Battle = Stage;

// The computer's reply is random: it stands in the log as `reply`.
Log sounds(Log log) {
  for (std::string &entry : log)
    if (entry == "R start Wasser" || entry == "R start Treffer" || entry == "RC start Versenkt")
      entry = "reply";
  return log;
}

// As the window system queues it.
void queueClick(QWidget &control, QPoint at) {
  QWindow *handle = control.window()->windowHandle();
  const QPointF local = control.mapTo(control.window(), at);
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
    QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
        handle, local, handle->mapToGlobal(local),
        type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type);
  // The pointer goes on at once.
  QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
      handle, QPointF(9, 460), handle->mapToGlobal(QPointF(9, 460)), Qt::NoButton, Qt::NoButton,
      QEvent::MouseMove);
}

QPoint middleOf(const Cell &cell) { return QPoint(25 * cell.X - 12, 25 * cell.Y - 12); }

TEST_F(Battle, TurnPaintsThenWaitsThenReplies) {
  startBattle(1);
  const std::pair<int, const char *> turns[] = {
      {0, "L wait Wasser"}, {1, "L wait Treffer"}, {8, "LC wait Versenkt"}}; // counters before it
  for (const auto &[BootID, heard] : turns) {
    sound.log.clear();
    robot->press(fresh(BootID));
    EXPECT_EQ(sounds(sound.log), (Log{heard, "reply"}));
  }
  EXPECT_EQ(counters()[11], "2");
  EXPECT_EQ(std::pair(window->BombenZahl(0), window->BombenZahl(1)), std::pair(3, 3));
}

TEST_F(Battle, WinningShotGetsNoReply) {
  startBattle(2);
  Robot::answer("cmdNein");
  winAsHuman();
  ASSERT_EQ(window->Modus(), frmHaupt::Over);
  EXPECT_EQ(std::pair(window->BombenZahl(0), window->BombenZahl(1)), std::pair(29, 28));
  EXPECT_EQ(Log(sound.log.end() - 2, sound.log.end()), (Log{"LC wait Versenkt", "start Sieg"}));
}

TEST_F(Battle, ComputerWinsAndShowsWhatWasLeft) {
  startBattle(1);
  Robot::answer("cmdNein");
  letComputerWin();
  ASSERT_EQ(winnerOf(window->grid()->BoatTable(2)), 2) << "this seed serves";
  EXPECT_EQ(window->BombenZahl(0), window->BombenZahl(1));
  EXPECT_EQ(Log(sound.log.end() - 2, sound.log.end()),
            (Log{"RC start Versenkt", "L start Verloren"}));
  const auto [X, Y] = window->grid()->CBoote(1).cell(1);
  EXPECT_EQ(field("picpFeld").content().copy(25 * (X - 1) + 1, 25 * (Y - 1) + 1, 24, 24),
            globals.sprites.stretched(Picture::picBoot, 24, 24));
  EXPECT_EQ(window->grid()->Treffer, 0);
}

// Presses that arrive while a turn lets events run stay queued: each is a whole turn of its own,
// and a toolbar command waits as well.
TEST_F(Battle, QueuedPressesDoNotNest) {
  startBattle(1);
  const Cell first = fresh(8); // sinks: events run twice in its turn
  for (const Cell &cell : {first, fresh(7), fresh(7), fresh(0)})
    queueClick(control("picpFeld"), middleOf(cell));
  Robot::onDialog([](QDialog &topTen) { topTen.close(); });
  queueClick(control("keyTop10"), {45, 30});
  for (int i = 0; i < 20; ++i)
    QCoreApplication::processEvents();

  Log log = sounds(sound.log);
  ASSERT_EQ(log.size(), 9u);
  log[4].erase(0, log[4].find("wait")); // whether the field was painted in between
  EXPECT_EQ(log, (Log{"LC wait Versenkt", "reply", "LC wait Versenkt", "reply", "wait Doppelt",
                      "L wait Wasser", "reply", "start Top10", "start silence"}));
}

TEST_F(Battle, AQueuedAccessKeyWaitsForTheReply) {
  startBattle(1);
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  sound.log.clear();
  queueClick(control("picpFeld"), middleOf(fresh(8)));
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease})
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        window->windowHandle(), type, Qt::Key_A, Qt::AltModifier, "a");
  bool asked = false;
  Robot::onDialog([&](QDialog &question) {
    asked = true;
    EXPECT_EQ(sounds(sound.log), (Log{"LC wait Versenkt", "reply"}));
    question.close();
  });
  for (int i = 0; i < 20; ++i)
    QCoreApplication::processEvents();
  EXPECT_TRUE(asked);
}

TEST_F(Battle, ACloseWaitsForNoQueuedPress) {
  startBattle(1);
  for (const Cell &cell : {fresh(1), fresh(2), fresh(3)})
    queueClick(control("picpFeld"), middleOf(cell));
  QWindowSystemInterface::handleCloseEvent<QWindowSystemInterface::AsynchronousDelivery>(
      window->windowHandle());
  for (int i = 0; i < 20; ++i)
    QCoreApplication::processEvents();
  EXPECT_EQ(sound.log, Log{"start silence"}) << "not even the first turn goes on";
}

TEST_F(Battle, SoundOffKeepsThePaceFromTheNextSoundOn) {
  startBattle(1);
  const std::string board = window->grid()->toText();
  Robot::onDialog([](QDialog &options) {
    Robot::click(Robot::control(options, "chkSound"));
    Robot::click(Robot::control(options, "optSize2"));
    Robot::click(Robot::control(options, "cmdÜbernehmen"));
  });
  robot->command("keyOptionen");
  EXPECT_EQ(store.values.value("Korvel/Options/StdSize"), "3");
  EXPECT_EQ(window->grid()->toText(), board) << "the new size waits for the next start";
  robot->press(fresh(0));
  EXPECT_EQ(sound.log, Log{"sleep 348"});
  open();
  EXPECT_EQ(window->grid()->Size(), 3);
}

} // namespace
