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

/// Cells of a field by row, from row 1 on; the rows below a smaller field are empty.
using CellRows = std::array<Layer::Row, rowsOf(kSizes) + 1>;

/// All unknown cells of which exactly `n`, 0 to 4, of the four edge neighbours are free. A
/// neighbour is free if it is unknown or lies off the field.
CellRows HasFreeNeighbours(const Layer &shots, int n);

/// The number of candidates of a block, and its number from 1; block 0 has no candidate.
struct BlockRank {
  std::uint8_t count = 0;
  std::uint8_t block = 0;
};

/// Selection sort, ascending by count, of the up to 16 blocks of a sea. Its exact form breaks the
/// ties: of equal counts the one found first goes first, and the swap displaces what stood there.
void SortBlockRanking(std::span<BlockRank> Ranking);
