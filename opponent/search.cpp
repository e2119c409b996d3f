// Where the computer looks when it finishes no boat.
//
// It shoots at cells that have as many unknown neighbours as any cell has, and where such cells
// are thickest. Each unknown cell has a number, its free edge neighbours. The candidates are the
// cells with the largest number of the sea, if that is 1 or more:
//
//     . o . .        3 o 3 3        o known, . unknown; what lies off the field
//     . . . o        4 3 3 o        is free, so the candidate here is the 4
//
// The field is cut into blocks of 5 by 4 cells, numbered row by row. The block with the most
// candidates is taken, or the second, on the toss of a coin, if a second has any. Where no unknown
// cell has a free neighbour, and once only boats of one cell are left, any unknown cell is as good
// as any other.

#include "KnownSea.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kBlockColumns = 5;
constexpr int kBlockRows = 4;

/// A part of the sea: its first cell, and how many columns and rows it has.
struct Part {
  int X, Y, columns, rows;
};

/// How many cells of the part have the number `n`.
int countIn(const Part &part, const CellNumbers &numbers, int n) {
  int count = 0;
  for (int Y = part.Y; Y < part.Y + part.rows; ++Y)
    for (int X = part.X; X < part.X + part.columns; ++X)
      count += numbers[indexOf(X, Y)] == n;
  return count;
}

/// The cells of the part with a number of `least` or more, row by row.
std::vector<Cell> cellsIn(const Part &part, const CellNumbers &numbers, int least) {
  std::vector<Cell> cells;
  cells.reserve(static_cast<std::size_t>(part.columns) * static_cast<std::size_t>(part.rows));
  for (int Y = part.Y; Y < part.Y + part.rows; ++Y)
    for (int X = part.X; X < part.X + part.columns; ++X)
      if (numbers[indexOf(X, Y)] >= least)
        cells.push_back({X, Y});
  return cells;
}

} // namespace

std::vector<Cell> searchList(const KnownSea &sea, RandomDraw &draw) {
  const Part whole{1, 1, sea.shots.columns(), sea.shots.rows()};
  const CellNumbers numbers = freeNeighbours(sea.shots);
  int n = 0;
  for (const std::int8_t number : numbers)
    n = std::max<int>(n, number);
  if (sea.OnlySinglesLeft || n == 0)
    return cellsIn(whole, numbers, 0);

  const int across = whole.columns / kBlockColumns;
  const int down = whole.rows / kBlockRows;
  const auto partOf = [&](int block) {
    return Part{(block - 1) % across * kBlockColumns + 1, (block - 1) / across * kBlockRows + 1,
                kBlockColumns, kBlockRows};
  };
  std::vector<BlockRank> BlockRanking;
  for (int block = 1; block <= across * down; ++block) {
    const int count = countIn(partOf(block), numbers, n);
    BlockRanking.push_back({count, count > 0 ? block : 0});
  }
  SortBlockRanking(BlockRanking);

  // The best stands last, the second before it.
  const auto best = BlockRanking.rbegin();
  const BlockRank &taken = best[1].block != 0 && draw.draw(2) == 2 ? best[1] : best[0];
  return cellsIn(partOf(taken.block), numbers, n);
}

CellNumbers freeNeighbours(const Layer &shots) {
  CellNumbers isFree;
  isFree.fill(1); // and so it stays off the field
  for (int Y = 1; Y <= shots.rows(); ++Y)
    for (int X = 1; X <= shots.columns(); ++X)
      isFree[indexOf(X, Y)] = shots(X, Y) == Shot::none;

  CellNumbers numbers;
  numbers.fill(-1);
  for (int Y = 1; Y <= shots.rows(); ++Y)
    for (int X = 1; X <= shots.columns(); ++X) {
      const int n = isFree[indexOf(X, Y - 1)] + isFree[indexOf(X + 1, Y)] +
                    isFree[indexOf(X, Y + 1)] + isFree[indexOf(X - 1, Y)];
      numbers[indexOf(X, Y)] = static_cast<std::int8_t>(isFree[indexOf(X, Y)] ? n : -1);
    }
  return numbers;
}

void SortBlockRanking(std::span<BlockRank> Ranking) {
  const auto fewer = [](const BlockRank &a, const BlockRank &b) { return a.count < b.count; };
  for (auto row = Ranking.begin(); row != Ranking.end(); ++row)
    std::swap(*row, *std::min_element(row, Ranking.end(), fewer));
}
