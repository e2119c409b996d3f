#pragma once

#include "Field.h"

#include <cstddef>
#include <cstdint>
#include <vector>

/// The record of a boat: for each of its points, 1 to its length, the cell and the state.
class tBoot {
public:
  static constexpr std::uint8_t intact = 0;
  static constexpr std::uint8_t hit = 2;
  static constexpr std::uint8_t sunk = 3;

  explicit tBoot(int length)
      : x_(static_cast<std::size_t>(length)), y_(x_.size()), status_(x_.size()) {}

  int length() const { return static_cast<int>(x_.size()); }

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
    for (const std::uint8_t status : status_)
      if (status == intact)
        return true;
    return false;
  }

private:
  static std::size_t index(int j) { return static_cast<std::size_t>(j - 1); }

  std::vector<std::uint8_t> x_;
  std::vector<std::uint8_t> y_;
  std::vector<std::uint8_t> status_;
};
