// The human's shots, and the counts and pictures of a battle.

#include "BoardTest.h"

namespace {

using ShotTest = BoardTest;
using StatusTest = BoardTest;
using Column = std::array<std::string, 6>;

constexpr const char *kFleet = "AAAA.BBB../........../CCC.DD.EE./........../F.G.H.....";

TEST_F(ShotTest, EachShotGivesItsCodeAndItsPictureOnce) {
  probe.placeComputer("........../.BB......./..B....F..");
  const std::tuple<Cell, ShotCode, Calls> shots[] = {
      {{10, 8}, ShotCode::water, {"left Daneben 226 176 24 24"}},
      {{10, 8}, ShotCode::repeated, {}},
      {{3, 3}, ShotCode::hit, {"left Treffer 51 51 24 24"}}, // points in any order
      {{3, 3}, ShotCode::repeated, {}},
      {{2, 2}, ShotCode::hit, {"left Treffer 26 26 24 24"}},
      {{3, 2},
       ShotCode::sunk, // point by point, and never a hit on the last
       {"left Versenkt 26 26 24 24", "left Versenkt 51 26 24 24", "left Versenkt 51 51 24 24"}},
      {{2, 2}, ShotCode::repeated, {}},
      {{3, 2}, ShotCode::repeated, {}},
      {{4, 4}, ShotCode::water, {"left Daneben 76 76 24 24"}}, // is not marked by the sinking
      {{8, 3}, ShotCode::sunk, {"left Versenkt 176 51 24 24"}},
  };
  for (const auto &[cell, code, drawn] : shots) {
    calls.clear();
    EXPECT_EQ(grid.Shoot(cell.X, cell.Y), code);
    EXPECT_EQ(calls, drawn);
    ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
  }
  EXPECT_EQ(grid.PFeld()(8, 3, 2), Shot::none) << "the other side's field";
}

TEST_F(StatusTest, CountersOfTheModes) {
  EXPECT_EQ(grid.BoatTable(0)[0], Column({"?", "?", "?", "?", "?", "?"}));
  EXPECT_EQ(grid.BoatTable(1)[0], Column({"0", "0", "1", "2", "2", "3"}));
  EXPECT_EQ(grid.BoatTable(1)[1], Column({"0", "0", "0", "0", "0", "0"}));
  probe.placeHuman("AAAA....../........../BBB......./........../F.........");
  EXPECT_EQ(grid.BoatTable(1)[0], Column({"0", "0", "0", "1", "2", "2"}));
  EXPECT_EQ(grid.BoatTable(3), BoatTexts());
  start(3);
  for (const Column &side : grid.BoatTable(2))
    EXPECT_EQ(side, Column({"1", "2", "2", "2", "3", "4"}));
}

TEST_F(StatusTest, BattleCountsSunkBoatsAndFindsTheWinner) {
  probe.placeComputer(kFleet);
  probe.placeHuman(kFleet);
  grid.Shoot(6, 1);
  grid.Shoot(7, 1);
  EXPECT_EQ(grid.BoatTable(2)[1], Column({"0", "0", "1", "2", "2", "3"})) << "hits count nothing";
  grid.Shoot(8, 1);
  EXPECT_EQ(grid.BoatTable(2)[1], Column({"0", "0", "1", "1", "2", "3"}));
  for (int i = 1; i <= 8; ++i) {
    EXPECT_EQ(winnerOf(grid.BoatTable(2)), 0) << "some boat is left";
    probe.sinkHuman(i);
  }
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 2);
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = 1; X <= 10; ++X)
      grid.Shoot(X, Y);
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 1) << "the computer's last boat decides first";
}

TEST_F(StatusTest, FleetsAreShownBoatByBoat) {
  probe.placeHuman(kFleet);
  grid.MoveFleet();
  ASSERT_EQ(calls.size(), 2u * 17);
  EXPECT_EQ(Calls(calls.begin(), calls.begin() + 2),
            (Calls{"left Wasser 1 1 24 24", "right Boot 1 1 24 24"}));
  EXPECT_EQ(Calls(calls.end() - 2, calls.end()),
            (Calls{"left Wasser 101 101 24 24", "right Boot 101 101 24 24"}));
  EXPECT_EQ(grid.PFeld()(1, 1, 1), 1) << "only the picture moves";

  probe.placeComputer(kFleet);
  for (const int Y : {1, 3})
    for (int X = Y; X <= 10; ++X) // all but the first two cells of row 3
      grid.Shoot(X, Y);
  calls.clear();
  grid.ShowComputerBoats();
  EXPECT_EQ(calls, (Calls{"left Boot 1 51 24 24", "left Boot 26 51 24 24", "left Boot 1 101 24 24",
                          "left Boot 51 101 24 24", "left Boot 101 101 24 24"}));
}

} // namespace
