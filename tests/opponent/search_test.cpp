#include "GridProbe.h"
#include "KnownSea.h"
#include "ScriptedDraw.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using Rows = std::vector<std::string>;

struct SearchTest : testing::Test {
  ScriptedDraw draw;
  clsGrid grid{draw};
  GridProbe probe{grid};

  void start(int size, const Rows &known = {}) {
    grid.setSize(size);
    grid.ResetFields();
    probe.know(known);
  }

  /// The list with the coin on 1 (best) or 2 (second), as a drawing: `+` a candidate.
  Rows listed(int coin) {
    draw.expect(coin, 2);
    const auto columns = static_cast<std::size_t>(grid.columns());
    Rows rows(static_cast<std::size_t>(grid.rows()), std::string(columns, '.'));
    Cell before{0, 0};
    for (const Cell &cell : probe.ShotList()) {
      EXPECT_TRUE(cell.Y > before.Y || (cell.Y == before.Y && cell.X > before.X)) << "row by row";
      before = cell;
      rows[static_cast<std::size_t>(cell.Y - 1)][static_cast<std::size_t>(cell.X - 1)] = '+';
    }
    return rows;
  }
};

TEST_F(SearchTest, FirstShotFallsIntoTheLastBlockOrTheOneBefore) {
  for (int size = 1; size <= 3; ++size)
    for (int coin = 1; coin <= 2; ++coin) {
      start(size);
      draw.expect(coin, 2);
      const auto list = probe.ShotList();
      ASSERT_EQ(list.size(), 20u);
      EXPECT_EQ(list[0], (Cell{grid.columns() - 5 * coin + 1, grid.rows() - 3}));
      EXPECT_EQ(list[19], (Cell{grid.columns() - 5 * coin + 5, grid.rows()}));
    }
}

TEST_F(SearchTest, CandidatesAreTheCellsWithTheMostFreeNeighbours) {
  // A miss takes itself and its neighbours out; beyond the rim counts as free.
  const Rows known = {"..........", "..........", "..........", "..........", //
                      ".o....o...", "..........", "....o....o", ".........."};
  start(1, known);
  EXPECT_EQ(listed(1), (Rows{"+++++.....", "+++++.....", "+++++.....", "+.+++.....", "..........",
                             "..........", "..........", ".........."}));
  EXPECT_EQ(listed(2), (Rows{".....+++++", ".....+++++", ".....+++++", ".....+.+++", "..........",
                             "..........", "..........", ".........."}))
      << "19 candidates as well, against 12 and 11 below";
}

TEST_F(SearchTest, FewerNeighboursCountOnlyWhenNoCellHasMore) {
  // Two cells with three free neighbours, at the rim and inside, and a pair with two.
  const Rows known = {"oo.ooo...o", "o...oooooo", "oooooooooo", "oooooooooo",
                      "oooooooooo", "ooooooooo.", "ooooooooo.", "oooooooooo"};
  start(1, known);
  Rows expected(8, std::string(10, '.'));
  expected[0][7] = '+';
  EXPECT_EQ(listed(1), expected);
  expected[0][7] = '.';
  expected[1][2] = '+';
  EXPECT_EQ(listed(2), expected);
  probe.PFeld()(2, 2, 2) = Shot::miss;
  probe.PFeld()(8, 1, 2) = Shot::miss;
  EXPECT_EQ(probe.ShotList(), (std::vector<Cell>{{10, 6}, {10, 7}})) << "two, without a coin";
}

TEST_F(SearchTest, LoneCellsAreReachedAtLast) {
  // Unknown cells without any free neighbour are no candidates of a pass.
  const Rows lone = {".ooooooooo", "oooooooooo", "ooooooo.oo", "oooooooooo",
                     "oo.ooooooo", "oooooooooo", "oooooooooo", "oooooooooo"};
  start(1, lone);
  const long before = draw.draws;
  const std::vector<Cell> all{{8, 3}, {3, 5}};
  auto list = probe.ShotList();
  EXPECT_EQ(list[0], (Cell{1, 1})) << "the corner, two of whose neighbours are off the field";
  EXPECT_EQ(list.size(), 1u);
  EXPECT_EQ(draw.draws, before) << "a single block has candidates: no coin";
  probe.PFeld()(1, 1, 2) = Shot::miss;
  EXPECT_EQ(probe.ShotList(), all) << "row by row over the field";
}

TEST_F(SearchTest, OnlySinglesLeftMakesAllUnknownCellsAlike) {
  start(1);
  const Rows fleet = {"AAAA.BBB..", "..........", "CCC.DD.EE.", "..........", "F.G.H....."};
  probe.placeHuman(fleet);
  for (int i = 1; i <= 4; ++i)
    probe.sinkHuman(i);
  EXPECT_LE(probe.ShotList().size(), 20u) << "a boat of two is left";
  probe.sinkHuman(5);
  const auto list = probe.ShotList();
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
      {{0, 0, 0, 0}, {0, 0, 0, 0}},
      {{20, 15, 20, 20}, {2, 1, 3, 4}},
      {{20, 20, 15, 20}, {3, 2, 1, 4}}, // 1 goes where 3 was
      {{20, 20, 20, 15}, {4, 2, 3, 1}}, // and to the end here
      {{7, 5, 7, 5}, {2, 4, 3, 1}},
      {{3, 0, 2, 0}, {0, 0, 3, 1}},
      {{20, 20, 20, 20, 15, 20, 20, 20, 20}, {5, 2, 3, 4, 1, 6, 7, 8, 9}},
      {{20, 20, 20, 20, 20, 20, 20, 15, 18}, {8, 9, 3, 4, 5, 6, 7, 1, 2}},
  };
  for (const auto &c : cases) {
    std::vector<BlockRank> ranking;
    for (std::size_t i = 0; i < c.counts.size(); ++i)
      ranking.push_back({c.counts[i], c.counts[i] > 0 ? static_cast<int>(i) + 1 : 0});
    SortBlockRanking(ranking);
    std::vector<int> sequence;
    for (const BlockRank &rank : ranking)
      sequence.push_back(rank.block);
    EXPECT_EQ(sequence, c.sequence);
  }
}

} // namespace
