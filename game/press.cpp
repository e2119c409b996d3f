#include "press.h"

#include <cmath>

std::optional<Cell> cellAt(double X, double Y, int width, int height, int cellSize) {
  if (X < 1 || X > width - 2 || Y < 1 || Y > height - 2)
    return std::nullopt;
  const int p = cellSize + 1; // a cell and its grid line
  const int x = static_cast<int>(std::lround(X));
  const int y = static_cast<int>(std::lround(Y));
  if (x % p == 0 || y % p == 0)
    return std::nullopt;
  return Cell{x / p + 1, y / p + 1};
}
