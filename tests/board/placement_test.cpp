#include "BoardTest.h"
#include "BoatInWork.h"

#include <numeric>

namespace {

using PlacementTest = BoardTest;

TEST_F(PlacementTest, PointsThatMayStand) {
  const std::string row(10, '+');
  const struct {
    const char *what;
    int BootID;
    const char *position;
    std::string allowed; // `+` where a further point of the boat may stand
  } cases[] = {
      {"a first point anywhere", 1, "",
       row + '/' + row + '/' + row + '/' + row + '/' + row + '/' + row + '/' + row + '/' + row},
      {"a second point at an edge only, the rim included", 1, "A", ".+/+"},
      {"no filled square, but round it", 1, "AA/.A", "..+/..+/.+"},
      {"a boat may go on at any of its points, T and U alike", 1, "/..AAA", "..+++/.+...+/..+++"},
      {"the last rows and columns are as good as any", 1, "//////.........A/.........A",
       "/////.........+/........+/........+"},
      {"a new boat keeps clear of another, at the corners too", 2, "//...A/...AA/.....A",
       "++++++++++/++...+++++/++....++++/++.....+++/++.....+++/++++...+++/" + row + '/' + row},
      {"between two boats there may be one way only", 3, "C//AAA//....B/....B", ".+"},
  };
  for (const auto &c : cases) {
    grid.ResetFields();
    probe.placeHuman(c.position);
    const auto allowed = [&](int X, int Y) { return grid.CreatePoint(c.BootID, X, Y); };
    EXPECT_EQ(probe.drawing(allowed), c.allowed) << c.what;
  }
}

TEST_F(PlacementTest, DeletedBoatLeavesNoTraceAndTheOthersAlone) {
  probe.placeHuman("A.B/A.B/A.B/A");
  const std::string before = grid.toText();
  EXPECT_TRUE(grid.SetPoint(3, 1, 6, 6));
  EXPECT_TRUE(grid.SetPoint(3, 2, 7, 6));
  EXPECT_EQ(grid.PFeld()(7, 6, 1), 3);
  grid.DeleteBoat(3);
  EXPECT_FALSE(grid.PBoote(3).hasPoints());
  EXPECT_EQ(grid.toText(), before);
  EXPECT_TRUE(grid.CreatePoint(3, 9, 1)) << "it begins anew anywhere";
}

TEST_F(PlacementTest, BoatsComeInTheirOrderAndPressesAfterTheLastAreRefused) {
  BoatInWork boat;
  const Cell presses[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 3}, {2, 3}, {3, 3}, {5, 3},
                          {6, 3}, {7, 3}, {1, 5}, {2, 5}, {4, 5}, {5, 5}, {7, 5}, {9, 5}};
  for (const Cell &press : presses) {
    ASSERT_TRUE(boat.accepts(grid, press.X, press.Y)) << grid.toText();
    EXPECT_TRUE(boat.add(grid, press.X, press.Y) || boat.next(grid));
  }
  ASSERT_TRUE(boat.accepts(grid, 9, 8));
  EXPECT_FALSE(boat.add(grid, 9, 8));
  EXPECT_FALSE(boat.next(grid));
  EXPECT_FALSE(boat.accepts(grid, 1, 8));
}

TEST_F(PlacementTest, BrokenBoardsAreFound) {
  const std::pair<const char *, void (*)(GridProbe &)> damages[] = {
      {"boats that touch at a corner", [](GridProbe &p) { p.placeHuman("///...D"); }},
      {"a cell of no boat", [](GridProbe &p) { p.PFeld()(9, 8, 1) = 4; }},
      {"a point that is not on the field", [](GridProbe &p) { p.PFeld()(1, 1, 1) = 0; }},
      {"a state that the record lacks", [](GridProbe &p) { p.PFeld()(1, 1, 2) = Shot::hit; }},
      {"a miss on a boat", [](GridProbe &p) { p.PFeld()(1, 1, 2) = Shot::miss; }},
      {"a hit on water", [](GridProbe &p) { p.PFeld()(9, 8, 2) = Shot::hit; }},
      {"a boat that sank in part",
       [](GridProbe &p) {
         p.humanBoat(1).setStatus(1, tBoot::sunk);
         p.PFeld()(1, 1, 2) = Shot::sunk;
       }},
      {"a boat hit all over that floats",
       [](GridProbe &p) {
         for (int j = 1; j <= 4; ++j)
           p.hitHuman(1, j);
       }},
      {"a point that follows a missing one",
       [](GridProbe &p) {
         p.humanBoat(3).setPoint(3, 8, 4);
         p.PFeld()(8, 4, 1) = 3;
       }},
      {"finishing a boat without a hit", [](GridProbe &p) { p.hitHuman(2, 1), p.sinkHuman(2); }},
  };
  for (const auto &[what, damage] : damages) {
    grid.ResetFields();
    probe.placeHuman("A.B/A.B/A.B/A.....C");
    ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
    damage(probe);
    EXPECT_TRUE(grid.brokenInvariant()) << what;
  }
}

TEST_F(PlacementTest, FleetsOfTheSizes) {
  const std::vector<int> lengths[] = {{4, 3, 3, 2, 2, 1, 1, 1},
                                      {5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1},
                                      {6, 5, 5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1}};
  for (int size = 1; size <= 3; ++size) {
    start(size);
    std::vector<int> found;
    for (int i = 1; i <= grid.BoatCount(); ++i)
      found.push_back(grid.CBoote(i).length());
    EXPECT_EQ(found, lengths[size - 1]);
    EXPECT_EQ(clsGrid::FleetCells(size), std::accumulate(found.begin(), found.end(), 0));
  }
}

} // namespace
