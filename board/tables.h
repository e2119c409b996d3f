#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// The three board sizes and their fleets, as data. `Size` is 1, 2 or 3 throughout. The last size
/// has the most columns and rows. CONTRIBUTING.md says what else knows that there are three.

inline constexpr int kSizes = 3;
inline constexpr int kClasses = 6; ///< class j holds the boats of length 7 - j

/// (size, 1) columns and (size, 2) rows, addressed from 0 here.
inline constexpr std::array<std::array<int, 2>, kSizes> FeldSize{{{10, 8}, {15, 12}, {20, 16}}};

static_assert(
    [] {
      for (const auto &[columns, rows] : FeldSize)
        if (columns % 5 != 0 || rows % 4 != 0)
          return false;
      return true;
    }(),
    "the search divides the sea into blocks of 5 by 4 cells");

/// Edge of a cell in pixels, without its grid line.
inline constexpr std::array<int, kSizes> kCellSize{24, 18, 15};

/// Number of boats, size 1 first, classes 1 to 6 (lengths 6 down to 1) within a size.
inline constexpr std::array<std::uint8_t, 18> BootList{0, 0, 1, 2, 2, 3, //
                                                       0, 1, 2, 2, 3, 4, //
                                                       1, 2, 2, 2, 3, 4};

using FleetTable = std::array<std::array<std::uint8_t, kClasses>, kSizes>;

/// `BootList` by size and class, addressed from 0.
inline constexpr FleetTable BootTable = [] {
  FleetTable table{};
  for (std::size_t i = 0; i < BootList.size(); ++i)
    table[i / kClasses][i % kClasses] = BootList[i];
  return table;
}();

constexpr std::size_t sizeIndex(int Size) { return static_cast<std::size_t>(Size - 1); }
constexpr int columnsOf(int Size) { return FeldSize[sizeIndex(Size)][0]; }
constexpr int rowsOf(int Size) { return FeldSize[sizeIndex(Size)][1]; }

/// Number of boats of class `j`, 1 to 6, in the fleet of a size.
constexpr int boatsOfClass(int Size, int j) {
  return BootTable[sizeIndex(Size)][static_cast<std::size_t>(j - 1)];
}

/// Number of boats of the fleet, singles included: 8, 12, 14.
constexpr int boatsOf(const FleetTable &table, int Size) {
  int boats = 0;
  for (const std::uint8_t ofClass : table[sizeIndex(Size)])
    boats += ofClass;
  return boats;
}

/// Length of boat `BootID`: boats are numbered from the longest class to the shortest.
constexpr int boatLength(const FleetTable &table, int Size, int BootID) {
  int last = 0;
  for (int j = 1; j <= kClasses; ++j) {
    last += table[sizeIndex(Size)][static_cast<std::size_t>(j - 1)];
    if (BootID <= last)
      return 7 - j;
  }
  return 0;
}
