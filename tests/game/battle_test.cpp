#include "Stage.h"

#include <QWindow>

#include <qpa/qwindowsysteminterface.h>

namespace {

using Battle = Stage;
using Log = std::vector<std::string>;

// The computer's reply to a shot is random, so only the human's half is compared to the letter.
bool isReply(const std::string &entry) {
  return entry == "R start Wasser" || entry == "R start Treffer" || entry == "RC start Versenkt";
}

TEST_F(Battle, TurnPaintsThenWaitsThenReplies) {
  startBattle(1);
  robot->press(fresh(0));
  ASSERT_EQ(sound.log.size(), 2u);
  EXPECT_EQ(sound.log[0], "L wait Wasser");
  EXPECT_TRUE(isReply(sound.log[1])) << sound.log[1];

  sound.log.clear();
  robot->press(fresh(1));
  ASSERT_EQ(sound.log.size(), 2u);
  EXPECT_EQ(sound.log[0], "L wait Treffer");
  EXPECT_TRUE(isReply(sound.log[1])) << sound.log[1];

  sound.log.clear();
  robot->press(fresh(8));
  ASSERT_EQ(sound.log.size(), 2u);
  EXPECT_EQ(sound.log[0], "LC wait Versenkt") << "counters before the sound";
  EXPECT_TRUE(isReply(sound.log[1])) << sound.log[1];
  EXPECT_EQ(counters()[11], "2");
  EXPECT_EQ(window->BombenZahl(0), 3);
  EXPECT_EQ(window->BombenZahl(1), 3);
}

TEST_F(Battle, RepeatedCellCostsNothingAndGetsNoReply) {
  startBattle(1);
  const Cell cell = fresh(0);
  robot->press(cell);
  sound.log.clear();
  const std::string board = window->grid()->toText();
  robot->press(cell);
  robot->press(cell);
  ASSERT_EQ(sound.log.size(), 2u);
  EXPECT_EQ(sound.log[0].substr(sound.log[0].find("wait")), "wait Doppelt");
  EXPECT_EQ(sound.log[1], "wait Doppelt");
  EXPECT_EQ(window->grid()->toText(), board);
  EXPECT_EQ(window->BombenZahl(0), 1);
  EXPECT_EQ(window->BombenZahl(1), 1);
}

TEST_F(Battle, WinningShotGetsNoReply) {
  startBattle(2);
  Robot::answer("cmdNein");
  winAsHuman();
  ASSERT_EQ(window->Modus(), frmHaupt::Over);
  EXPECT_EQ(window->BombenZahl(0), 29);
  EXPECT_EQ(window->BombenZahl(1), 28);
  ASSERT_GE(sound.log.size(), 2u);
  EXPECT_EQ(Log(sound.log.end() - 2, sound.log.end()), (Log{"LC wait Versenkt", "start Sieg"}));

  const std::string board = window->grid()->toText();
  sound.log.clear();
  robot->press(fresh(0));
  EXPECT_EQ(window->grid()->toText(), board) << "nothing fires after the end";
  EXPECT_EQ(sound.log, Log{});
  EXPECT_FALSE(control("picpFeld").isEnabled());
  EXPECT_EQ(counters()[11], "0") << "the counters stay";
  newGame(1);
  EXPECT_EQ(window->Modus(), frmHaupt::Setup);
}

TEST_F(Battle, ComputerWinsAndShowsWhatWasLeft) {
  startBattle(1);
  Robot::answer("cmdNein");
  letComputerWin();
  ASSERT_EQ(winnerOf(window->grid()->BoatTable(2)), 2) << "this seed serves";
  EXPECT_EQ(window->BombenZahl(0), window->BombenZahl(1));
  EXPECT_EQ(Log(sound.log.end() - 2, sound.log.end()), (Log{"RC start Versenkt", "L start Verloren"}));
  const auto [X, Y] = window->grid()->CBoote(1).cell(1);
  EXPECT_EQ(Robot::control<PictureBox>(*window, "picpFeld")
                .content()
                .copy(25 * (X - 1) + 1, 25 * (Y - 1) + 1, 24, 24),
            globals.sprites.stretched(Picture::picBoot, 24, 24));
  EXPECT_EQ(window->grid()->Treffer, 0);
}

TEST_F(Battle, NewGameDropsTheRunningOneAndCancelGoesOn) {
  startBattle(1);
  robot->press(fresh(0));
  Robot::answer("cmdAbbruch");
  robot->command("keyNew");
  EXPECT_EQ(window->Modus(), frmHaupt::Battle);
  robot->press(fresh(0));
  EXPECT_EQ(window->BombenZahl(0), 2);
  startBattle(1);
  EXPECT_EQ(window->BombenZahl(0), 0);
  EXPECT_EQ(window->BombenZahl(1), 0);
}

// Presses that arrive while a turn lets events run stay queued: each is a whole turn of its own,
// and a toolbar command waits as well.
TEST_F(Battle, QueuedPressesDoNotNest) {
  startBattle(1);
  auto &field = control("picpFeld");
  const auto queue = [&](QWidget &target, QPoint at) {
    QWindow *handle = window->windowHandle();
    const QPointF local = target.mapTo(window.get(), at);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease})
      QWindowSystemInterface::handleMouseEvent<QWindowSystemInterface::AsynchronousDelivery>(
          handle, local, handle->mapToGlobal(local),
          type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::LeftButton, type);
  };
  const auto middle = [&](const Cell &cell) {
    return QPoint(25 * cell.X - 12, 25 * cell.Y - 12);
  };
  const Cell first = fresh(8); // sinks: events run twice in its turn
  const Cell second = fresh(7);
  const Cell third = fresh(0);
  for (const Cell &cell : {first, second, second, third})
    queue(field, middle(cell));
  Robot::answer("cmdAbbruch"); // the question of the last command
  queue(control("keyEnde"), {45, 30});
  for (int i = 0; i < 20; ++i)
    QCoreApplication::processEvents();

  ASSERT_EQ(sound.log.size(), 7u);
  EXPECT_EQ(sound.log[0], "LC wait Versenkt");
  EXPECT_TRUE(isReply(sound.log[1])) << sound.log[1];
  EXPECT_EQ(sound.log[2], "LC wait Versenkt");
  EXPECT_TRUE(isReply(sound.log[3])) << sound.log[3];
  EXPECT_EQ(sound.log[4].substr(sound.log[4].find("wait")), "wait Doppelt");
  EXPECT_EQ(sound.log[5], "L wait Wasser");
  EXPECT_TRUE(isReply(sound.log[6])) << sound.log[6];
  EXPECT_TRUE(window->isVisible());
}

TEST_F(Battle, SoundOffKeepsThePace) {
  store.values["Sound"] = "0";
  open();
  startBattle(1);
  robot->press(fresh(0));
  EXPECT_EQ(sound.log, Log{"sleep 348"});
}

} // namespace
