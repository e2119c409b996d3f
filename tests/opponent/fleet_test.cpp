#include "BoardTest.h"

namespace {

TEST_F(BoardTest, EndlessDeadEndIsGivenUpWithoutATrace) {
  // Boat 1 begins at (1, 4). It can go on only to (2, 4), and from there only back.
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = Y == 2 || Y == 6 ? 1 : 4; X <= 4; ++X)
      probe.CFeld().set(X, Y, 1, 7);
  draw.expect(1, 10);
  draw.expect(4, 8);
  EXPECT_FALSE(probe.CreateComputerBoat(1));
  EXPECT_EQ(draw.draws, 2 + 2 * 1000) << "a thousand steps back";
  EXPECT_EQ(grid.toText().find('A'), std::string::npos);
  EXPECT_FALSE(grid.CBoote(1).hasPoints());
}

} // namespace
