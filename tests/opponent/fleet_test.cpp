#include "BoardTest.h"

namespace {

TEST(RandomDraw, NeverLeavesItsRange) {
  struct : RandomDraw {
    double next() override { return 1 - 0x1p-32; } // the most that a source may give
  } draw;
  for (int n = 1; n <= 400; ++n)
    EXPECT_EQ(draw.draw(n), n);
}

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

TEST_F(BoardTest, FullSeaFailsInBoundedTime) {
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = Y % 2 + 1; X <= 10; X += 2)
      probe.CFeld().set(X, Y, 1, 8);
  EXPECT_FALSE(probe.PlaceComputerBoats());
  EXPECT_LT(draw.draws, 100 * 100 * 8) << "a hundred tries of a hundred cells each, half taken";
  EXPECT_TRUE(grid.CreateComputerField()) << "a new attempt begins with an empty sea";
}

} // namespace
