#pragma once

#include "Field.h"
#include "RandomDraw.h"

#include <vector>

/// All that the computer may base its choice on: what a player at its place would see, and nothing
/// of a boat that it did not hit. The boats' layer and records can't be reached from here.
struct KnownSea {
  int Size;
  const Layer &shots;     ///< layer 2 of the human's field; a cell with `Shot::none` is unknown
  std::vector<Cell> hits; ///< hit cells of the boat that is being finished, by point number
  std::vector<bool> sunk; ///< whether boat i + 1 is sunk
};

/// The cells to choose among while no boat is being finished.
std::vector<Cell> searchList(const KnownSea &sea, RandomDraw &draw);

/// The unknown neighbours of `sea.hits`. A cell next to two hits stands in it twice, and so has
/// twice the chance.
std::vector<Cell> finishingList(const KnownSea &sea);

// Steps of the search, open to tests.

/// The number of candidates of a block, and its number from 1; block 0 has no candidate.
struct BlockRank {
  int count = 0;
  int block = 0;
};

/// True if the cell is unknown and exactly `n` of its four edge neighbours are unknown or off the
/// field.
bool HasFreeNeighbours(const Layer &shots, int X, int Y, int n);

/// Selection sort, ascending by count. Its exact form breaks the ties: of equal counts the one
/// found first goes first, and the swap displaces what stood there.
void SortBlockRanking(std::vector<BlockRank> &Ranking);

/// True if every boat of two or more cells is sunk.
bool OnlySinglesLeft(const KnownSea &sea);
