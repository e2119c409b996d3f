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

#include <algorithm>
#include <bit>

namespace {

using Row = Layer::Row;

constexpr int kBlockColumns = 5;
constexpr int kBlockRows = 4;
constexpr int kBlockCells = kBlockColumns * kBlockRows;
constexpr int kMostBlocks = columnsOf(kSizes) / kBlockColumns * (rowsOf(kSizes) / kBlockRows);

/// Fills in the blocks of a sea, each with its number of cells that have `n` free neighbours.
std::span<BlockRank> rankBlocks(std::array<BlockRank, kMostBlocks> &ranks, const Layer &shots,
                                const FreeNeighbours &free, int n) {
  // The numbers of the blocks beside each other grow in the bits of their columns, where 20 has
  // room. Two rows are looked at in one.
  using Rows = std::uint64_t;
  constexpr Rows kFirstColumns = 0b00001'00001'00001'00001 * ((Rows{1} << 32) + 1);
  static_assert(kBlockCells < 1 << kBlockColumns && kBlockRows % 2 == 0);
  std::uint8_t block = 0;
  for (int top = 1; top <= shots.rows(); top += kBlockRows) {
    Rows counts = 0;
    for (int Y = top; Y < top + kBlockRows; Y += 2) {
      const Rows rows = free.cells(Y, n) | Rows{free.cells(Y + 1, n)} << 32;
      for (int X = 1; X <= kBlockColumns; ++X)
        counts += rows >> X & kFirstColumns;
    }
    counts += counts >> 32;
    for (int left = 0; left < shots.columns(); left += kBlockColumns) {
      const auto count = static_cast<std::uint8_t>(counts >> left & ((1 << kBlockColumns) - 1));
      ++block;
      ranks[block - 1u] = {count, count > 0 ? block : std::uint8_t{0}};
    }
  }
  return std::span(ranks).first(block);
}

/// The cells of a block that have `n` free neighbours, row by row.
std::vector<Cell> candidatesOf(int block, const Layer &shots, const FreeNeighbours &free, int n) {
  const int across = shots.columns() / kBlockColumns;
  const int left = (block - 1) % across * kBlockColumns;
  const int top = (block - 1) / across * kBlockRows;
  // Each cell is put behind the candidates so far, and stays there if it is one itself.
  std::vector<Cell> cells(kBlockCells);
  std::size_t count = 0;
  for (int Y = top + 1; Y <= top + kBlockRows; ++Y)
    for (int X = left + 1; X <= left + kBlockColumns; ++X) {
      cells[count] = {X, Y};
      count += free.HasFreeNeighbours(X, Y, n);
    }
  cells.resize(count);
  return cells;
}

std::vector<Cell> unknownCells(const Layer &shots) {
  std::vector<Cell> cells;
  cells.reserve(static_cast<std::size_t>(shots.columns()) * static_cast<std::size_t>(shots.rows()));
  for (int Y = 1; Y <= shots.rows(); ++Y)
    for (int X = 1; X <= shots.columns(); ++X)
      if (shots(X, Y) == Shot::none)
        cells.push_back({X, Y});
  return cells;
}

} // namespace

std::vector<Cell> searchList(const KnownSea &sea, RandomDraw &draw) {
  if (sea.OnlySinglesLeft)
    return unknownCells(sea.shots);
  const FreeNeighbours free(sea.shots);
  const int n = free.most();
  if (n == 0)
    return unknownCells(sea.shots);

  std::array<BlockRank, kMostBlocks> ranks;
  const auto BlockRanking = rankBlocks(ranks, sea.shots, free, n);
  SortBlockRanking(BlockRanking);

  const BlockRank best = BlockRanking.back();
  const BlockRank second = BlockRanking[BlockRanking.size() - 2];
  const bool takeSecond = second.block != 0 && draw.draw(2) == 2;
  return candidatesOf((takeSecond ? second : best).block, sea.shots, free, n);
}

FreeNeighbours::FreeNeighbours(const Layer &shots) {
  // The unknown cells, with what lies off the field.
  const auto rows = static_cast<std::size_t>(shots.rows());
  const Row field = ((Row{1} << shots.columns()) - 1) << 1;
  std::array<Row, rowsOf(kSizes) + 2> free;
  free[0] = free[rows + 1] = ~Row{0};
  for (std::size_t Y = 1; Y <= rows; ++Y)
    free[Y] = shots.zeros(static_cast<int>(Y)) | ~field;

  for (std::size_t Y = 1; Y <= rows; ++Y) {
    // None, one and both of two opposite neighbours.
    const Row above = free[Y - 1], below = free[Y + 1];
    const Row left = free[Y] << 1, right = free[Y] >> 1;
    const std::array<Row, 3> upright{~(above | below), above ^ below, above & below};
    const std::array<Row, 3> level{~(left | right), left ^ right, left & right};
    std::array<Row, 5> byCount{};
    for (std::size_t i = 0; i < 3; ++i)
      for (std::size_t j = 0; j < 3; ++j)
        byCount[i + j] |= upright[i] & level[j];
    for (std::size_t n = 0; n < byCount.size(); ++n)
      cells_[n][Y] = byCount[n] & free[Y] & field;
  }
}

int FreeNeighbours::most() const {
  for (int n = 4; n > 0; --n) {
    Row any = 0;
    for (const Row row : cells_[static_cast<std::size_t>(n)])
      any |= row;
    if (any != 0)
      return n;
  }
  return 0;
}

void SortBlockRanking(std::span<BlockRank> Ranking) {
  // The rows of each count, row i in bit i, so that no step has to look for the least.
  std::array<std::uint32_t, kBlockCells + 1> rowsOfCount{};
  for (std::size_t row = 0; row < Ranking.size(); ++row)
    rowsOfCount[Ranking[row].count] |= 1u << row;

  std::size_t i = 0;
  for (std::uint32_t rows : rowsOfCount)
    for (; rows != 0; rows &= rows - 1, ++i) {
      const auto m = static_cast<std::size_t>(std::countr_zero(rows));
      rowsOfCount[Ranking[i].count] ^= 1u << i ^ 1u << m; // what stood in row i goes to row m
      std::swap(Ranking[i], Ranking[m]);
    }
}
