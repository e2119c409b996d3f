// The human's shots, and their pictures.

#include "BoardTest.h"

namespace {

using ShotTest = BoardTest;

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

TEST_F(ShotTest, WhatIsLeftOfTheComputersFleetIsShown) {
  probe.placeComputer("AAAA.BBB../........../CCC.DD.EE./........../F.G.H.....");
  for (const int Y : {1, 3})
    for (int X = Y; X <= 10; ++X) // all but the first two cells of row 3
      grid.Shoot(X, Y);
  calls.clear();
  grid.ShowComputerBoats();
  EXPECT_EQ(calls, (Calls{"left Boot 1 51 24 24", "left Boot 26 51 24 24", "left Boot 1 101 24 24",
                          "left Boot 51 101 24 24", "left Boot 101 101 24 24"}));
}

} // namespace
