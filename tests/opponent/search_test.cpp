#include "BoardTest.h"
#include "KnownSea.h"

namespace {

using Cells = std::vector<Cell>;

TEST(Search, ListsTheCellsWithTheMostFreeNeighbours) {
  // `o` is known; the cells with `+` are listed, with the coin on 1 (best block) or 2 (second).
  const struct {
    const char *known;
    int coin;
    const char *listed;
  } cases[] = {
      // A miss takes itself and its neighbours out; beyond the rim counts as free.
      {"////.o....o//....o....o", 1, "+++++/+++++/+++++/+.+++"},
      {"////.o....o//....o....o", 2, ".....+++++/.....+++++/.....+++++/.....+.+++"},
      // Two cells with three free neighbours; the block of the second stands last, by a tie.
      {"oo.ooo...o/o...oooooo/oooooooooo/oooooooooo/oooooooooo/ooooooooo./ooooooooo./oooooooooo", 1,
       ".......+"},
      // No cell has a free neighbour: any will do.
      {"oooooooooo/oooooooooo/ooooooo.oo/oooooooooo/oo.ooooooo/oooooooooo/oooooooooo/oooooooooo", 1,
       "//.......+//..+"},
  };
  for (const auto &[known, coin, listed] : cases) {
    Layer shots(10, 8);
    forEachCell(known, [&](int X, int Y, char c) { shots.set(X, Y, c == 'o'); });
    Cells expected;
    forEachCell(listed, [&](int X, int Y, char c) {
      if (c == '+')
        expected.push_back({X, Y});
    });
    ScriptedDraw draw;
    draw.expect(coin, 2);
    EXPECT_EQ(searchList({shots, {}, false}, draw), expected) << known << ", coin " << coin;
  }
}

TEST(Search, SelectionSortBreaksTies) {
  using Blocks = std::vector<int>;
  const std::pair<Blocks, Blocks> cases[] = {
      // counts of blocks 1, 2, ..., and their sequence
      {{20, 20, 15, 20}, {3, 2, 1, 4}}, // 1 goes where 3 was
      {{2, 2, 1, 3}, {3, 2, 1, 4}},     // where it is found after 2
      {{20, 20, 20, 20, 20, 20, 20, 15, 18}, {8, 9, 3, 4, 5, 6, 7, 1, 2}},
  };
  for (const auto &[counts, sequence] : cases) {
    std::vector<BlockRank> ranking;
    for (int block = 1; const int count : counts)
      ranking.push_back({count, block++});
    SortBlockRanking(ranking);
    Blocks found;
    for (const BlockRank &rank : ranking)
      found.push_back(rank.block);
    EXPECT_EQ(found, sequence);
  }
}

} // namespace
