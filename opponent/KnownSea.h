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

// Steps of the search, open to tests and tools.

/// A number for each cell of the largest sea and of a rim around it, row by row.
inline constexpr std::size_t kRimmedColumns = columnsOf(kSizes) + 2;
inline constexpr std::size_t kRimmedRows = rowsOf(kSizes) + 2;
using CellNumbers = std::array<std::int8_t, kRimmedColumns * kRimmedRows>;

/// Where a `CellNumbers` has the number of a cell.
constexpr std::size_t indexOf(int X, int Y) {
  return static_cast<std::size_t>(Y) * kRimmedColumns + static_cast<std::size_t>(X);
}

/// The number of free edge neighbours of each unknown cell, 0 to 4, and -1 for all other cells. A
/// neighbour is free if it is unknown or lies off the field.
CellNumbers freeNeighbours(const Layer &shots);

/// The number of candidates of a block, and its number from 1; block 0 has no candidate.
struct BlockRank {
  int count = 0;
  int block = 0;
};

/// Selection sort, ascending by count, of the up to 16 blocks of a sea. Its exact form breaks the
/// ties: of equal counts the one found first goes first, and the swap displaces what stood there.
void SortBlockRanking(std::span<BlockRank> Ranking);
