#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <vector>

/// A cell of a field: column `X` from the left, row `Y` from the top, both counted from 1.
struct Cell {
  int X = 0;
  int Y = 0;

  bool operator==(const Cell &) const = default;
};

/// The steps to the four edge neighbours of a cell: up, right, down, left. Lists of cells and the
/// numbers of directions keep this order.
inline constexpr std::array<Cell, 4> kSteps{{{0, -1}, {1, 0}, {0, 1}, {-1, 0}}};

/// One byte for each cell of a field, 0 at first.
class Layer {
public:
  Layer() = default;
  Layer(int columns, int rows) { reset(columns, rows); }

  /// Sets all cells to 0 and, where it has to, the size.
  void reset(int columns, int rows) {
    columns_ = columns;
    rows_ = rows;
    values_.assign(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), 0);
  }

  int columns() const { return columns_; }
  int rows() const { return rows_; }

  /// Whether the cell lies on the field. What a cell off the field counts as, free,
  /// closed, known or water, is up to each rule.
  bool contains(int X, int Y) const { return X >= 1 && X <= columns_ && Y >= 1 && Y <= rows_; }

  /// The value of a cell on the field.
  std::uint8_t operator()(int X, int Y) const { return values_[index(X, Y)]; }
  /// Gives a cell on the field a value.
  void set(int X, int Y, std::uint8_t value) { values_[index(X, Y)] = value; }

private:
  std::size_t index(int X, int Y) const {
    assert(contains(X, Y));
    return static_cast<std::size_t>((Y - 1) * columns_ + X - 1);
  }

  int columns_ = 0;
  int rows_ = 0;
  std::vector<std::uint8_t> values_;
};

/// What layer 2 of a field holds of a cell.
namespace Shot {
inline constexpr std::uint8_t none = 0; ///< no shot here, and nothing known
inline constexpr std::uint8_t miss = 1; ///< water was hit, or is known from a sunk boat beside it
inline constexpr std::uint8_t hit = 2;  ///< a boat is hit here and is still afloat
inline constexpr std::uint8_t sunk = 3; ///< the boat of this cell is sunk
} // namespace Shot

/// The sea of one side in three layers: 1 the boats (0 water, else the `BootID`), 2 the shots of
/// the other side (see `Shot`), 3 reserved, neither read nor written.
class Field {
public:
  /// Sets all cells to 0 and, where it has to, the size.
  void reset(int columns, int rows) {
    for (Layer &layer : layers_)
      layer.reset(columns, rows);
  }

  int columns() const { return layers_[0].columns(); }
  int rows() const { return layers_[0].rows(); }
  bool contains(int X, int Y) const { return layers_[0].contains(X, Y); }

  /// Layer `k`, 1 to 3, of a cell on the field.
  std::uint8_t operator()(int X, int Y, int k) const { return layer(k)(X, Y); }
  void set(int X, int Y, int k, std::uint8_t value) { layers_[index(k)].set(X, Y, value); }
  const Layer &layer(int k) const { return layers_[index(k)]; }

private:
  static std::size_t index(int k) { return static_cast<std::size_t>(k - 1); }

  std::array<Layer, 3> layers_;
};
