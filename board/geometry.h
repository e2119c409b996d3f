#pragma once

#include "Field.h"

#include <optional>

/// Where the cells of a field are, in pixels of its drawing area. With c the edge of a cell and
/// p = c + 1, grid lines of one pixel are at 0, p, 2p, ...:
///
///     0       p       2p
///     |1 ... c|p+1 ...|
struct CellGeometry {
  int c; ///< edge of a cell, without its grid line
  int p = c + 1;

  /// The first pixel of a column or row inside its cells. The last one is c - 1 further.
  int first(int index) const { return p * (index - 1) + 1; }
  /// A pixel in the middle of a column or row.
  int middle(int index) const { return first(index) + c / 2; }
  /// The cell at a pixel of a drawing area of `width` by `height`; nothing on a grid line or beyond
  /// the cells.
  std::optional<Cell> cellAt(int x, int y, int width, int height) const {
    if (x < 1 || x > width - 2 || y < 1 || y > height - 2 || x % p == 0 || y % p == 0)
      return std::nullopt;
    return Cell{x / p + 1, y / p + 1};
  }
};
