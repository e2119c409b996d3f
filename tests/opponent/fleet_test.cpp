#include "BoardTest.h"
#include "ClockDraw.h"

#include <cstdlib>

namespace {

using FleetTest = BoardTest;

TEST_F(FleetTest, DirectionsThatAreOpen) {
  struct {
    const char *what;
    const char *fleet;
    Cell from;
    std::array<int, 4> found; // for the drawn directions 1 to 4
  } const cases[] = {
      {"in open water as drawn", "", {5, 4}, {1, 2, 3, 4}},
      {"never onto the rim or along it", "", {2, 4}, {1, 2, 3, 1}},
      {"from the left rim to the right only", "", {1, 4}, {2, 2, 2, 2}},
      {"from the lower rim up only", "", {5, 8}, {1, 1, 1, 1}},
      {"from the upper rim down only", "", {5, 1}, {3, 3, 3, 3}},
      {"from the right rim to the left only", "", {10, 4}, {4, 4, 4, 4}},
      {"from a corner nowhere", "", {10, 8}, {0, 0, 0, 0}},
      {"two cells short of the rim is too near", "", {9, 7}, {1, 4, 4, 4}},
      {"another boat two ahead closes it", "/....F", {5, 4}, {2, 2, 3, 4}},
      {"or at a corner of two boxes", "//.....F", {5, 4}, {3, 3, 3, 4}},
      {"not one that is three away", "....F", {5, 4}, {1, 2, 3, 4}},
      {"never back into itself", "///..A", {4, 4}, {1, 2, 3, 1}},
  };
  for (const auto &c : cases) {
    grid.ResetFields();
    probe.placeComputer(c.fleet);
    std::array<int, 4> found{};
    for (int drawn = 1; drawn <= 4; ++drawn)
      found[static_cast<std::size_t>(drawn - 1)] = probe.FindDirection(drawn, c.from.X, c.from.Y);
    EXPECT_EQ(found, c.found) << c.what;
  }
}

TEST_F(FleetTest, WalkFollowsItsDraws) {
  for (const auto &[value, n] : {std::pair{5, 10}, {4, 8}, {2, 4}, {3, 4}, {4, 4}})
    draw.expect(value, n);
  ASSERT_TRUE(probe.CreateComputerBoat(1));
  const Cell way[] = {{5, 4}, {6, 4}, {6, 5}, {7, 5}}; // 4 would touch the first, 1 leads back
  for (int j = 1; j <= 4; ++j)
    EXPECT_EQ(grid.CBoote(1).cell(j), way[j - 1]);
}

TEST_F(FleetTest, FirstCellTouchesNothingButMayStandOnTheRim) {
  probe.placeComputer("/.A");
  for (const Cell &drawn : {Cell{2, 2}, {3, 3}, {10, 8}}) { // taken, touching, a corner
    draw.expect(drawn.X, 10);
    draw.expect(drawn.Y, 8);
  }
  int X = 0, Y = 0;
  ASSERT_TRUE(probe.FindFreeCell(X, Y));
  EXPECT_EQ((Cell{X, Y}), (Cell{10, 8}));
}

TEST_F(FleetTest, EndlessDeadEndIsGivenUpWithoutATrace) {
  // Boat 1 begins at (1, 4), whose only way on is (2, 4), and from there is none but back.
  probe.forEach("...G/GGGG/...G/...G/...G/GGGG/...G/...G",
                [&](int X, int Y, char cell) { probe.CFeld()(X, Y, 1) = cell == 'G' ? 7 : 0; });
  draw.expect(1, 10);
  draw.expect(4, 8);
  EXPECT_FALSE(probe.CreateComputerBoat(1));
  EXPECT_EQ(draw.draws, 2 + 2 * 1000) << "a thousand steps back";
  EXPECT_EQ(grid.toText().find('A'), std::string::npos);
  EXPECT_FALSE(grid.CBoote(1).hasPoints());
}

TEST_F(FleetTest, FullSeaFailsInBoundedTime) {
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = Y % 2 + 1; X <= 10; X += 2)
      probe.CFeld()(X, Y, 1) = 8;
  EXPECT_FALSE(probe.PlaceComputerBoats());
  EXPECT_LT(draw.draws, 100 * 100 * 8) << "a hundred tries of a hundred cells each, half taken";
  EXPECT_TRUE(grid.CreateComputerField()) << "a new attempt begins with an empty sea";
}

// What other rooms count on, over thousands of fleets.
TEST(ComputerFleet, KeepsItsProperties) {
  ClockDraw draw;
  clsGrid grid(draw);
  bool rimSeen = false, cornerSeen = false;
  for (int size = 1; size <= 3; ++size) {
    grid.setSize(size);
    for (int fleet = 0; fleet < 1500; ++fleet) {
      ASSERT_TRUE(grid.CreateComputerField());
      ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
      for (int i = 1; i <= grid.BoatCount(); ++i) {
        const tBoot &boat = grid.CBoote(i);
        for (int j = 1; j <= boat.length(); ++j) {
          const auto [X, Y] = boat.cell(j);
          const bool onRim = X == 1 || Y == 1 || X == grid.columns() || Y == grid.rows();
          rimSeen = rimSeen || (onRim && boat.length() > 1);
          cornerSeen = cornerSeen || (X == 1 && Y == 1);
          ASSERT_TRUE(j == 1 || !onRim) << grid.toText();
          for (int k = 1; k < j; ++k) {
            const int dx = std::abs(X - boat.X(k)), dy = std::abs(Y - boat.Y(k));
            ASSERT_EQ(dx + dy == 1, k == j - 1) << grid.toText();
            // It touches itself at the corner of a turn only.
            ASSERT_TRUE(k >= j - 2 || dx > 1 || dy > 1) << grid.toText();
          }
        }
      }
    }
  }
  EXPECT_TRUE(rimSeen && cornerSeen);
}

} // namespace
