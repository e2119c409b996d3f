// Where the computer looks when it finishes no boat.
//
// It shoots at cells that have as many unknown neighbours as any cell has, and where such cells
// are thickest. The field is cut into blocks of 5 by 4 cells, numbered row by row:
//
//     size 1    1 | 2     a cell is a candidate if it is unknown itself and has n free edge
//               --+--     neighbours, for the largest n of 4, 3, 2, 1 that any cell reaches
//               3 | 4
//
// The block with the most candidates is taken, or the second, on the toss of a coin, if a second
// has any. Where no unknown cell has a free neighbour, and once only boats of one cell are left,
// any unknown cell is as good as any other.

#include "KnownSea.h"

#include <algorithm>
#include <bit>
#include <cassert>

namespace {

using Row = Layer::Row;

constexpr int kBlockColumns = 5;
constexpr int kBlockRows = 4;
constexpr int kBlockCells = kBlockColumns * kBlockRows;
constexpr int kMostBlocks = columnsOf(kSizes) / kBlockColumns * (rowsOf(kSizes) / kBlockRows);

bool isEmpty(const CellRows &cells) {
  return std::all_of(cells.begin(), cells.end(), [](Row row) { return row == 0; });
}

/// Fills in the blocks of a sea, each with its number of candidates.
std::span<BlockRank> rankBlocks(std::array<BlockRank, kMostBlocks> &ranks, const Layer &shots,
                                const CellRows &candidates) {
  // The blocks beside each other are counted at once, each in the bits of its five columns, where
  // 20 has room.
  constexpr Row kFirstColumns = 0b00001'00001'00001'00001;
  constexpr Row kCount = 0b11111;
  static_assert(kBlockCells <= kCount);
  const auto rows = static_cast<std::size_t>(shots.rows());
  CellRows sums{};
  for (std::size_t Y = 1; Y <= rows; ++Y)
    for (int X = 1; X <= kBlockColumns; ++X)
      sums[Y] += candidates[Y] >> X & kFirstColumns;

  std::uint8_t block = 0;
  for (std::size_t Y = 1; Y <= rows; Y += kBlockRows) {
    Row counts = sums[Y] + sums[Y + 1] + sums[Y + 2] + sums[Y + 3];
    for (int X = 1; X <= shots.columns(); X += kBlockColumns, counts >>= kBlockColumns) {
      const auto count = static_cast<std::uint8_t>(counts & kCount);
      ++block;
      // A product, as a branch that can't be foretold would take longer than all the rest.
      ranks[block - 1u] = {count, static_cast<std::uint8_t>(block * (count > 0))};
    }
  }
  return std::span(ranks).first(block);
}

/// The candidates of a block, row by row.
std::vector<Cell> candidatesOf(int block, const Layer &shots, const CellRows &candidates) {
  const int across = shots.columns() / kBlockColumns;
  const int left = (block - 1) % across * kBlockColumns;
  const int top = (block - 1) / across * kBlockRows;
  // Each cell is put behind the candidates so far, and stays there if it is one itself.
  std::vector<Cell> cells(kBlockCells);
  std::size_t count = 0;
  for (int Y = top + 1; Y <= top + kBlockRows; ++Y)
    for (int X = left + 1; X <= left + kBlockColumns; ++X) {
      cells[count] = {X, Y};
      count += candidates[static_cast<std::size_t>(Y)] >> X & 1;
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

  CellRows candidates{};
  for (int n = 4; n > 0 && isEmpty(candidates); --n)
    candidates = HasFreeNeighbours(sea.shots, n);
  if (isEmpty(candidates))
    return unknownCells(sea.shots);

  std::array<BlockRank, kMostBlocks> ranks;
  const auto BlockRanking = rankBlocks(ranks, sea.shots, candidates);
  SortBlockRanking(BlockRanking);

  // The best stands last, the second before it.
  const std::size_t blocks = BlockRanking.size();
  const auto fromEnd =
      static_cast<std::size_t>(BlockRanking[blocks - 2].block != 0 ? draw.draw(2) : 1);
  return candidatesOf(BlockRanking[blocks - fromEnd].block, sea.shots, candidates);
}

CellRows HasFreeNeighbours(const Layer &shots, int n) {
  // The free neighbours of all cells of a row are added up in binary, a row for each digit of the
  // sums, and compared with n in all columns.
  const std::array<Row, 3> digits{n & 1 ? ~Row{0} : 0, n & 2 ? ~Row{0} : 0, n & 4 ? ~Row{0} : 0};
  const auto free = [&](std::size_t Y) { return ~shots.filled(static_cast<int>(Y)); };
  const Row field = ((Row{1} << shots.columns()) - 1) << 1;
  CellRows cells{};
  for (std::size_t Y = 1; Y <= static_cast<std::size_t>(shots.rows()); ++Y) {
    const Row above = free(Y - 1), below = free(Y + 1);
    const Row left = free(Y) << 1, right = free(Y) >> 1;
    const Row ones = above ^ below ^ left ^ right;
    const Row fours = above & below & left & right;
    const Row twos =
        ((above & below) | (left & right) | ((above ^ below) & (left ^ right))) & ~fours;
    const Row differ = (ones ^ digits[0]) | (twos ^ digits[1]) | (fours ^ digits[2]);
    cells[Y] = free(Y) & field & ~differ;
  }
  return cells;
}

void SortBlockRanking(std::span<BlockRank> Ranking) {
  assert(Ranking.size() <= kMostBlocks);
  // The rows of each count, row i in bit i, so that no step has to look for the least.
  std::array<std::uint32_t, kBlockCells + 1> rowsOfCount{};
  std::uint32_t counts = 0; // those that occur, a bit each
  for (std::size_t row = 0; row < Ranking.size(); ++row) {
    rowsOfCount[Ranking[row].count] |= 1u << row;
    counts |= 1u << Ranking[row].count;
  }

  // When all others are in their places, the rows of the largest count are so too.
  std::size_t i = 0;
  for (; (counts & (counts - 1)) != 0; counts &= counts - 1)
    for (std::uint32_t rows = rowsOfCount[static_cast<std::size_t>(std::countr_zero(counts))];
         rows != 0; rows &= rows - 1, ++i) {
      const auto m = static_cast<std::size_t>(std::countr_zero(rows));
      rowsOfCount[Ranking[i].count] ^= 1u << i ^ 1u << m; // what stood in row i goes to row m
      std::swap(Ranking[i], Ranking[m]);
    }
}
