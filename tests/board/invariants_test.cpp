#include "BoardTest.h"

namespace {

TEST_F(BoardTest, BrokenBoardsAreFound) {
  const std::pair<const char *, std::function<void()>> damages[] = {
      {"boats that touch at a corner", [&] { probe.placeHuman("///...D"); }},
      {"a cell of no boat", [&] { probe.PFeld().set(9, 8, 1, 4); }},
      {"a point that is not on the field", [&] { probe.PFeld().set(1, 1, 1, 0); }},
      {"a state that the record lacks", [&] { probe.PFeld().set(1, 1, 2, Shot::hit); }},
      {"a miss on a boat", [&] { probe.setStatus(1, 1, Shot::miss); }},
      {"a hit on water", [&] { probe.PFeld().set(9, 8, 2, Shot::hit); }},
      {"a boat that sank in part", [&] { probe.setStatus(1, 1, tBoot::sunk); }},
      {"a boat hit all over that floats", [&] { probe.setStatus(6, 1, tBoot::hit); }},
      {"a point that follows a missing one",
       [&] { probe.PBoote()[0].setPoint(2, 0, 0), probe.PFeld().set(1, 2, 1, 0); }},
      {"finishing a boat without a hit", [&] { grid.Treffer = 2; }},
  };
  for (const auto &[what, damage] : damages) {
    grid.ResetFields();
    probe.placeHuman("A.B.F/A.B/A.B/A.....C");
    ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
    damage();
    EXPECT_TRUE(grid.brokenInvariant()) << what;
  }
}

} // namespace
