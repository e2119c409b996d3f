#include "BoardTest.h"
#include "KnownSea.h"

namespace {

using Cells = std::vector<Cell>;

struct SearchTest : BoardTest {
  /// Cells with `o` are known to be water.
  void know(const char *sea) {
    probe.forEach(sea, [&](int X, int Y, char c) {
      probe.PFeld().set(X, Y, 2, c == 'o' ? Shot::miss : Shot::none);
    });
  }
  /// The list, drawn, with the coin on 1 (best) or 2 (second).
  std::string listed(int coin) {
    draw.expect(coin, 2);
    const Cells list = probe.ShotList();
    auto next = list.begin();
    std::string drawing = probe.drawing([&](int X, int Y) {
      return next != list.end() && *next == Cell{X, Y} && ++next > list.begin();
    });
    EXPECT_EQ(next, list.end()) << "row by row";
    return drawing;
  }
};

TEST_F(SearchTest, FirstShotFallsIntoTheLastBlockOrTheOneBefore) {
  for (int size = 1; size <= 3; ++size)
    for (int coin = 1; coin <= 2; ++coin) {
      start(size);
      draw.expect(coin, 2);
      const Cells list = probe.ShotList();
      ASSERT_EQ(list.size(), 20u);
      EXPECT_EQ(list[0], (Cell{grid.columns() - 5 * coin + 1, grid.rows() - 3}));
      EXPECT_EQ(list[19], (Cell{grid.columns() - 5 * coin + 5, grid.rows()}));
    }
}

TEST_F(SearchTest, CandidatesAreTheCellsWithTheMostFreeNeighbours) {
  // A miss takes itself and its neighbours out; beyond the rim counts as free.
  know("////.o....o//....o....o");
  EXPECT_EQ(listed(1), "+++++/+++++/+++++/+.+++");
  EXPECT_EQ(listed(2), ".....+++++/.....+++++/.....+++++/.....+.+++") << "19 as well; 12, 11 below";
}

TEST_F(SearchTest, FewerNeighboursCountOnlyWhenNoCellHasMore) {
  // Two cells with three free neighbours, at the rim and inside, and a pair with two.
  know("oo.ooo...o/o...oooooo/oooooooooo/oooooooooo/oooooooooo/ooooooooo./ooooooooo./oooooooooo");
  EXPECT_EQ(listed(1), ".......+");
  EXPECT_EQ(listed(2), "/..+");
  probe.PFeld().set(2, 2, 2, Shot::miss);
  probe.PFeld().set(8, 1, 2, Shot::miss);
  EXPECT_EQ(probe.ShotList(), (Cells{{10, 6}, {10, 7}})) << "two, without a coin";
}

TEST_F(SearchTest, LoneCellsAreReachedAtLast) {
  // Unknown cells without any free neighbour are no candidates of a pass.
  know(".ooooooooo/oooooooooo/ooooooo.oo/oooooooooo/oo.ooooooo/oooooooooo/oooooooooo/oooooooooo");
  EXPECT_EQ(probe.ShotList(), (Cells{{1, 1}})) << "two of its neighbours are off the field";
  EXPECT_EQ(draw.draws, 0) << "a single block has candidates: no coin";
  probe.PFeld().set(1, 1, 2, Shot::miss);
  EXPECT_EQ(probe.ShotList(), (Cells{{8, 3}, {3, 5}})) << "row by row over the field";
}

TEST_F(SearchTest, OnlySinglesLeftMakesAllUnknownCellsAlike) {
  probe.placeHuman("AAAA.BBB../........../CCC.DD.EE./........../F.G.H.....");
  for (int i = 1; i <= 4; ++i)
    probe.sinkHuman(i);
  EXPECT_LE(probe.ShotList().size(), 20u) << "a boat of two is left";
  probe.sinkHuman(5);
  const Cells list = probe.ShotList();
  EXPECT_EQ(list.size(), 80u - 14);
  EXPECT_EQ(list[0], (Cell{5, 1})) << "beside boats, too";
  EXPECT_EQ(list.back(), (Cell{10, 8}));
  probe.sinkHuman(6);
  EXPECT_EQ(probe.ShotList().size(), 80u - 15) << "sunk singles play no part";
}

TEST(BlockRanking, SelectionSortBreaksTies) {
  struct {
    std::vector<int> counts;   // of blocks 1, 2, ...
    std::vector<int> sequence; // of block numbers, 0 without a candidate
  } const cases[] = {
      {{20, 20, 20, 20}, {1, 2, 3, 4}}, // nothing moves
      {{20, 20, 15, 20}, {3, 2, 1, 4}}, // 1 goes where 3 was
      {{20, 20, 20, 15}, {4, 2, 3, 1}}, // and to the end here
      {{2, 2, 1, 3}, {3, 2, 1, 4}},     // where it is found after 2
      {{3, 0, 2, 0}, {0, 0, 3, 1}},
      {{20, 20, 20, 20, 20, 20, 20, 15, 18}, {8, 9, 3, 4, 5, 6, 7, 1, 2}},
  };
  for (const auto &c : cases) {
    std::vector<BlockRank> ranking;
    for (int block = 1; const int count : c.counts)
      ranking.push_back({count, count > 0 ? block : 0}), ++block;
    SortBlockRanking(ranking);
    std::vector<int> sequence;
    for (const BlockRank &rank : ranking)
      sequence.push_back(rank.block);
    EXPECT_EQ(sequence, c.sequence);
  }
}

} // namespace
