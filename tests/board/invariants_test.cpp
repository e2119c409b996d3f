#include "BoardTest.h"

namespace {

using InvariantsTest = BoardTest;

TEST_F(InvariantsTest, BrokenBoardsAreFound) {
  const std::pair<const char *, void (*)(GridProbe &)> damages[] = {
      {"boats that touch at a corner", [](GridProbe &p) { p.placeHuman("///...D"); }},
      {"a cell of no boat", [](GridProbe &p) { p.PFeld().set(9, 8, 1, 4); }},
      {"a point that is not on the field", [](GridProbe &p) { p.PFeld().set(1, 1, 1, 0); }},
      {"a state that the record lacks", [](GridProbe &p) { p.PFeld().set(1, 1, 2, Shot::hit); }},
      {"a miss on a boat", [](GridProbe &p) { p.PFeld().set(1, 1, 2, Shot::miss); }},
      {"a hit on water", [](GridProbe &p) { p.PFeld().set(9, 8, 2, Shot::hit); }},
      {"a boat that sank in part",
       [](GridProbe &p) {
         p.humanBoat(1).setStatus(1, tBoot::sunk);
         p.PFeld().set(1, 1, 2, Shot::sunk);
       }},
      {"a boat hit all over that floats",
       [](GridProbe &p) {
         for (int j = 1; j <= 4; ++j)
           p.hitHuman(1, j);
       }},
      {"a point that follows a missing one",
       [](GridProbe &p) {
         p.humanBoat(3).setPoint(3, 8, 4);
         p.PFeld().set(8, 4, 1, 3);
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

} // namespace
