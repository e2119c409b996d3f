// Where the computer looks when it finishes no boat.
//
// It shoots at cells that have as many unknown neighbours as any cell has, and where such cells
// are thickest. The field is cut into blocks of 5 by 4 cells, numbered row by row:
//
//     size 1    1 | 2     a cell is a candidate if it is unknown itself and has n free edge
//               --+--     neighbours, for the largest n of 4, 3, 2, 1 that any cell reaches
//               3 | 4
//
// The block with the most candidates is taken, or the second, on the toss of a coin. Once only
// boats of one cell are left, any unknown cell is as good as any other.

#include "KnownSea.h"
#include "tables.h"

#include <algorithm>
#include <array>

namespace {

constexpr int kBlockColumns = 5;
constexpr int kBlockRows = 4;

/// Calls `act` with each candidate of a block that has `n` free neighbours, row by row.
template <typename Act>
void forCandidates(int block, const Layer &shots, int n, const Act &act) {
  const int across = shots.columns() / kBlockColumns;
  const int left = (block - 1) % across * kBlockColumns;
  const int top = (block - 1) / across * kBlockRows;
  for (int Y = top + 1; Y <= top + kBlockRows; ++Y)
    for (int X = left + 1; X <= left + kBlockColumns; ++X)
      if (HasFreeNeighbours(shots, X, Y, n))
        act(Cell{X, Y});
}

int countCandidates(int block, const Layer &shots, int n) {
  int count = 0;
  forCandidates(block, shots, n, [&](const Cell &) { ++count; });
  return count;
}

std::vector<Cell> candidatesOf(int block, const Layer &shots, int n) {
  std::vector<Cell> cells;
  forCandidates(block, shots, n, [&](const Cell &cell) { cells.push_back(cell); });
  return cells;
}

std::vector<Cell> unknownCells(const Layer &shots) {
  std::vector<Cell> cells;
  for (int Y = 1; Y <= shots.rows(); ++Y)
    for (int X = 1; X <= shots.columns(); ++X)
      if (shots(X, Y) == Shot::none)
        cells.push_back({X, Y});
  return cells;
}

} // namespace

std::vector<Cell> searchList(const KnownSea &sea, RandomDraw &draw) {
  if (OnlySinglesLeft(sea))
    return unknownCells(sea.shots);

  const int blocks = sea.shots.columns() / kBlockColumns * (sea.shots.rows() / kBlockRows);
  std::vector<BlockRank> BlockRanking;
  for (int n = 4; n >= 1; --n) {
    BlockRanking.clear();
    for (int block = 1; block <= blocks; ++block) {
      const int count = countCandidates(block, sea.shots, n);
      BlockRanking.push_back({count, count > 0 ? block : 0});
    }
    SortBlockRanking(BlockRanking);

    const BlockRank best = BlockRanking.back();
    const BlockRank second = BlockRanking[BlockRanking.size() - 2];
    if (best.count == 0)
      continue;
    const bool takeSecond = second.block != 0 && draw.draw(2) == 2;
    return candidatesOf((takeSecond ? second : best).block, sea.shots, n);
  }
  return unknownCells(sea.shots);
}

bool HasFreeNeighbours(const Layer &shots, int X, int Y, int n) {
  if (shots(X, Y) != Shot::none)
    return false;
  const auto isFree = [&](int x, int y) {
    return !shots.contains(x, y) || shots(x, y) == Shot::none;
  };
  return isFree(X, Y - 1) + isFree(X + 1, Y) + isFree(X, Y + 1) + isFree(X - 1, Y) == n;
}

void SortBlockRanking(std::vector<BlockRank> &Ranking) {
  for (auto i = Ranking.begin(); i != Ranking.end(); ++i)
    std::iter_swap(i,
                   std::min_element(i, Ranking.end(), [](const BlockRank &a, const BlockRank &b) {
                     return a.count < b.count;
                   }));
}

bool OnlySinglesLeft(const KnownSea &sea) {
  // The singles stand behind all longer boats.
  const auto singles = boatsOfClass(sea.Size, kClasses);
  return std::all_of(sea.sunk.begin(), sea.sunk.end() - singles, [](bool sunk) { return sunk; });
}
