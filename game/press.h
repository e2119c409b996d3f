#pragma once

#include "Field.h"

#include <optional>

/// The cell under a press on a field, in pixels of its drawing area, `width` by `height`; nothing
/// on a grid line or beyond the cells. `cellSize` is the edge of a cell without its line.
std::optional<Cell> cellAt(int X, int Y, int width, int height, int cellSize);
