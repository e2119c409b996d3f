// Shots at drawn fleets: their codes and their pictures.

#include "BoardTest.h"

namespace {

TEST_F(BoardTest, EachShotOfTheHumanGivesItsCodeAndItsPictureOnce) {
  probe.placeComputer("AAAA.DD..F/........../.BB.EE.G../..B......./........../CCC.....H.");
  const std::tuple<Cell, ShotCode, Calls> shots[] = {
      {{10, 8}, ShotCode::water, {"left Daneben 226 176 24 24"}},
      {{10, 8}, ShotCode::repeated, {}},
      {{3, 4}, ShotCode::hit, {"left Treffer 51 76 24 24"}}, // points in any order
      {{2, 3}, ShotCode::hit, {"left Treffer 26 51 24 24"}},
      {{2, 3}, ShotCode::repeated, {}},
      {{3, 3},
       ShotCode::sunk, // point by point, and never a hit on the last
       {"left Versenkt 26 51 24 24", "left Versenkt 51 51 24 24", "left Versenkt 51 76 24 24"}},
      {{3, 3}, ShotCode::repeated, {}},
      {{4, 5}, ShotCode::water, {"left Daneben 76 101 24 24"}}, // is not marked by the sinking
  };
  for (const auto &[cell, code, drawn] : shots) {
    calls.clear();
    EXPECT_EQ(grid.Shoot(cell.X, cell.Y), code);
    EXPECT_EQ(calls, drawn);
  }

  for (int X = 1; X <= 10; ++X)
    grid.Shoot(X, 1), grid.Shoot(X, 3);
  grid.Shoot(2, 6);
  calls.clear();
  grid.ShowComputerBoats();
  EXPECT_EQ(calls,
            (Calls{"left Boot 1 126 24 24", "left Boot 51 126 24 24", "left Boot 201 126 24 24"}));
}

TEST_F(BoardTest, ShotsOfTheComputerAreShownOnTheOtherSide) {
  // All cells but four are known, so that there is little to choose: first the one between two
  // unknown ones, last the lone one.
  probe.placeHuman("/.BBB");
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = 1; X <= 10; ++X)
      probe.PFeld().set(X, Y, 2, grid.PFeld()(X, Y, 1) == 0 && Cell{X, Y} != Cell{7, 5});
  const std::pair<ShotCode, Calls> shots[] = {
      {ShotCode::hit, {"right Treffer 51 26 24 24"}},
      {ShotCode::hit, {"right Treffer 26 26 24 24"}}, // at the left by the seed of the draw
      {ShotCode::sunk,                                // and nothing on the water around
       {"right Versenkt 26 26 24 24", "right Versenkt 51 26 24 24", "right Versenkt 76 26 24 24"}},
      {ShotCode::water, {"right Daneben 151 101 24 24"}},
  };
  for (const auto &[code, drawn] : shots) {
    calls.clear();
    EXPECT_EQ(grid.ComputerShoot(), code);
    EXPECT_EQ(calls, drawn);
  }
}

} // namespace
