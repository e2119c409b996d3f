#include "BoardTest.h"
#include "ClockDraw.h"
#include "players.h"

#include <algorithm>

namespace {

using Cells = std::vector<Cell>;

struct MoveTest : BoardTest {
  MoveTest() {
    probe.placeHuman("AA.....G../.A......../.A.....CCC/........../"
                     "F....BBB../...D....../...D....../EE.......H");
  }

  /// The computer's move at a cell that it may choose.
  ShotCode shootAt(const Cell &target) {
    const auto coin = [&] {
      if (grid.Treffer == 0)
        draw.expect(1, 2);
    };
    coin(); // for this look at the list
    const Cells list = probe.ShotList();
    const auto entry = std::find(list.begin(), list.end(), target);
    EXPECT_NE(entry, list.end());
    const int n = static_cast<int>(list.size());
    coin();
    for (int i = 0; i < 4 * n; ++i)
      draw.expect(1, n); // a shuffle that moves nothing
    draw.expect(static_cast<int>(entry - list.begin()) + 1, n);
    calls.clear();
    return grid.ComputerShoot();
  }
};

TEST_F(MoveTest, FinishingListsUnknownNeighboursOfHitsOnly) {
  probe.hitHuman(1, 1);
  EXPECT_EQ(probe.ShotList(), (Cells{{2, 1}, {1, 2}})) << "in a corner";
  probe.hitHuman(1, 2);
  probe.hitHuman(1, 3);
  EXPECT_EQ(probe.ShotList(), (Cells{{1, 2}, {3, 1}, {3, 2}, {2, 3}, {1, 2}}))
      << "the inner corner of the bend twice";
  probe.PFeld()(1, 2, 2) = Shot::miss;
  EXPECT_EQ(probe.ShotList(), (Cells{{3, 1}, {3, 2}, {2, 3}}));

  probe.hitHuman(2, 3);
  EXPECT_EQ(probe.ShotList(), (Cells{{8, 4}, {9, 5}, {8, 6}, {7, 5}}));
}

TEST_F(MoveTest, ShuffleAndChoiceFollowTheirDraws) {
  probe.hitHuman(1, 1);                           // the list is (2, 1), (1, 2)
  for (const int value : {1, 2, 1, 1, 2, 2, 1, 2, // swapped twice: as it was
                          2})                     // the second entry
    draw.expect(value, 2);
  EXPECT_EQ(grid.ComputerShoot(), ShotCode::water);
  EXPECT_EQ(grid.PFeld()(1, 2, 2), Shot::miss);
  EXPECT_EQ(grid.Treffer, 1) << "a miss changes nothing";
  EXPECT_EQ(draw.draws, 9);
}

TEST_F(MoveTest, LongBoatFromFirstHitToSinking) {
  EXPECT_EQ(shootAt({6, 5}), ShotCode::hit);
  EXPECT_EQ(calls, Calls{"right Treffer 126 101 24 24"});
  EXPECT_EQ(grid.Treffer, 2);
  EXPECT_EQ(shootAt({6, 6}), ShotCode::water);
  EXPECT_EQ(calls, Calls{"right Daneben 126 126 24 24"});
  EXPECT_EQ(grid.Treffer, 2);
  EXPECT_EQ(shootAt({7, 5}), ShotCode::hit);
  EXPECT_EQ(shootAt({8, 5}), ShotCode::sunk);
  EXPECT_EQ(calls, (Calls{"right Versenkt 126 101 24 24", "right Versenkt 151 101 24 24",
                          "right Versenkt 176 101 24 24"}))
      << "nothing is drawn on the water around";
  EXPECT_EQ(grid.Treffer, 0);
  const auto known = [&](int state) {
    return probe.drawing([&](int X, int Y) { return grid.PFeld()(X, Y, 2) == state; });
  };
  EXPECT_EQ(known(Shot::sunk), "////.....+++");
  EXPECT_EQ(known(Shot::miss), "///....+++++/....+...+/....+++++");
}

// Whole games with a surface that does nothing: the computer never repeats a cell, never fires
// where it knows water, and gets every fleet.
TEST(WholeGames, ComputerSinksEveryFleet) {
  ClockDraw draw;
  clsGrid grid(draw);
  for (int size = 1; size <= 3; ++size)
    for (int game = 0; game < 60; ++game) {
      grid.setSize(size);
      do
        ASSERT_TRUE(grid.CreateComputerField());
      while (!setRandomFleet(grid, draw));
      int shots = 0;
      while (winnerOf(grid.BoatTable(2)) == 0) {
        const Field before = grid.PFeld();
        ++shots;
        ASSERT_NE(grid.ComputerShoot(), ShotCode::repeated);
        ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
        int fresh = 0;
        for (int Y = 1; Y <= grid.rows(); ++Y)
          for (int X = 1; X <= grid.columns(); ++X)
            fresh += before(X, Y, 2) == Shot::none && grid.PFeld()(X, Y, 2) != Shot::none;
        ASSERT_GE(fresh, 1) << grid.toText();
      }
      ASSERT_GE(shots, clsGrid::FleetCells(size));
      ASSERT_LE(shots, grid.columns() * grid.rows());
    }
}

} // namespace
