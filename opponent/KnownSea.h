#pragma once

#include "Field.h"
#include "RandomDraw.h"
#include "tables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// All that the computer may base its choice on: what a player at its place would see, and nothing
/// of a boat that it did not hit. The boats' layer and records can't be reached from here.
struct KnownSea {
  const Layer &shots;     ///< layer 2 of the human's field; a cell with `Shot::none` is unknown
  std::vector<Cell> hits; ///< hit cells of the boat that is being finished, by point number
  bool OnlySinglesLeft;   ///< whether every boat of two or more cells is sunk
};

/// The cells to choose among while no boat is being finished.
std::vector<Cell> searchList(const KnownSea &sea, RandomDraw &draw);

/// The unknown neighbours of `sea.hits`. A cell next to two hits stands in it twice, and so has
/// twice the chance.
std::vector<Cell> finishingList(const KnownSea &sea);

// Steps of the search, open to tests.

/// How many of its four edge neighbours each unknown cell has free. A neighbour is free if it is
/// unknown or lies off the field. Counted once, for all cells of a row at a time.
class FreeNeighbours {
public:
  using Row = Layer::Row;

  explicit FreeNeighbours(const Layer &shots);

  /// The largest number that any unknown cell has; 0 as well if there is none.
  int most() const;
  /// The unknown cells of row `Y` of which exactly `n`, 0 to 4, neighbours are free.
  Row cells(int Y, int n) const {
    return cells_[static_cast<std::size_t>(n)][static_cast<std::size_t>(Y)];
  }
  /// Whether (X, Y) is such a cell.
  bool HasFreeNeighbours(int X, int Y, int n) const { return (cells(Y, n) >> X & 1) != 0; }

private:
  std::array<std::array<Row, rowsOf(kSizes) + 1>, 5> cells_{}; ///< by n, then by row
};

/// The number of candidates of a block, and its number from 1; block 0 has no candidate.
struct BlockRank {
  std::uint8_t count = 0;
  std::uint8_t block = 0;
};

/// Selection sort, ascending by count. Its exact form breaks the ties: of equal counts the one
/// found first goes first, and the swap displaces what stood there.
void SortBlockRanking(std::span<BlockRank> Ranking);
