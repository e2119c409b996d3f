#include "BoardTest.h"

namespace {

TEST_F(BoardTest, EachShotGivesItsCodeAndItsPictureOnce) {
  probe.placeComputer("AAAA.DD..F/........../.BB.EE.G../..B......./........../CCC.....H.");
  // The computer knows all cells but four, so it begins with the one between two unknown ones.
  probe.placeHuman("/.BBB");
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = 1; X <= 10; ++X)
      probe.PFeld().set(X, Y, 2, grid.PFeld()(X, Y, 1) == 0 && Cell{X, Y} != Cell{7, 5});
  constexpr Cell computer{};
  const std::tuple<Cell, ShotCode, Calls> shots[] = {
      {{10, 8}, ShotCode::water, {"left Daneben 226 176 24 24"}},
      {{10, 8}, ShotCode::repeated, {}},
      {{3, 4}, ShotCode::hit, {"left Treffer 51 76 24 24"}}, // points in any order
      {{2, 3}, ShotCode::hit, {"left Treffer 26 51 24 24"}},
      {{3, 3},
       ShotCode::sunk, // point by point, and never a hit on the last
       {"left Versenkt 26 51 24 24", "left Versenkt 51 51 24 24", "left Versenkt 51 76 24 24"}},
      {{4, 5}, ShotCode::water, {"left Daneben 76 101 24 24"}}, // is not marked by the sinking
      {{2, 6}, ShotCode::hit, {"left Treffer 26 126 24 24"}},
      {computer, ShotCode::hit, {"right Treffer 51 26 24 24"}},
      {computer, ShotCode::hit, {"right Treffer 26 26 24 24"}}, // at the left by the draw's seed
      {computer,
       ShotCode::sunk, // and nothing on the water around
       {"right Versenkt 26 26 24 24", "right Versenkt 51 26 24 24", "right Versenkt 76 26 24 24"}},
      {computer, ShotCode::water, {"right Daneben 151 101 24 24"}},
  };
  for (const auto &[cell, code, drawn] : shots) {
    calls.clear();
    EXPECT_EQ(cell == computer ? grid.ComputerShoot() : grid.Shoot(cell.X, cell.Y), code);
    EXPECT_EQ(calls, drawn);
  }

  calls.clear();
  grid.ShowComputerBoats();
  EXPECT_EQ(calls.size(), 17u - 3 - 1) << "no cell that the human has hit";
  EXPECT_EQ(calls.back(), "left Boot 201 126 24 24");
}

} // namespace
