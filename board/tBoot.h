#pragma once

#include "Field.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

/// The record of a boat: for each of its points, 1 to its length, the cell and the state.
class tBoot {
public:
  static constexpr std::uint8_t intact = 0;
  static constexpr std::uint8_t hit = 2;
  static constexpr std::uint8_t sunk = 3;

  static constexpr int kLongest = 6;

  /// `length` is 1 to `kLongest`.
  explicit tBoot(int length) : length_(length) {}

  int length() const { return length_; }

  /// Column and row of point `j`; 0 while the point is not set.
  std::uint8_t X(int j) const { return x_[index(j)]; }
  std::uint8_t Y(int j) const { return y_[index(j)]; }
  Cell cell(int j) const { return {X(j), Y(j)}; }
  /// State of point `j`: 0 intact, 2 hit, 3 sunk.
  std::uint8_t Status(int j) const { return status_[index(j)]; }

  void setPoint(int j, int X, int Y) {
    x_[index(j)] = static_cast<std::uint8_t>(X);
    y_[index(j)] = static_cast<std::uint8_t>(Y);
  }
  void setStatus(int j, std::uint8_t status) { status_[index(j)] = status; }

  /// Points are set in the order of their numbers, so the first tells whether there is any.
  bool hasPoints() const { return X(1) != 0; }
  /// Sinking sets all points at once, so the first tells whether the boat is sunk.
  bool isSunk() const { return Status(1) == sunk; }
  /// Whether some point was not hit yet.
  bool isAfloat() const {
    return std::find(status_.begin(), status_.begin() + length_, intact) !=
           status_.begin() + length_;
  }

private:
  static std::size_t index(int j) { return static_cast<std::size_t>(j - 1); }

  int length_;
  std::array<std::uint8_t, kLongest> x_{};
  std::array<std::uint8_t, kLongest> y_{};
  std::array<std::uint8_t, kLongest> status_{};
};
