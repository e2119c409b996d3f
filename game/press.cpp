#include "press.h"

std::optional<Cell> cellAt(int X, int Y, int width, int height, int cellSize) {
  if (X < 1 || X > width - 2 || Y < 1 || Y > height - 2)
    return std::nullopt;
  const int p = cellSize + 1; // a cell and its grid line
  if (X % p == 0 || Y % p == 0)
    return std::nullopt;
  return Cell{X / p + 1, Y / p + 1};
}
