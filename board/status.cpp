// What the counters below the fields say, and what the fields show between two phases.

#include "clsGrid.h"

#include <algorithm>

namespace {

// `BootTable` less the boats that count as gone, class by class. Boats of a class have consecutive
// numbers after those of the longer classes.
template <typename Gone>
std::array<std::string, kClasses> remaining(int Size, const std::vector<tBoot> &boats, Gone gone) {
  std::array<std::string, kClasses> texts;
  auto boot = boats.begin();
  for (int j = 1; j <= kClasses; ++j) {
    const auto end = boot + boatsOfClass(Size, j);
    texts[static_cast<std::size_t>(j - 1)] =
        std::to_string(std::count_if(boot, end, [&](const tBoot &b) { return !gone(b); }));
    boot = end;
  }
  return texts;
}

} // namespace

int winnerOf(const BoatTexts &table) {
  const auto noneLeft = [](const auto &column) {
    return std::all_of(column.begin(), column.end(), [](const auto &text) { return text == "0"; });
  };
  if (noneLeft(table[1]))
    return 1;
  return noneLeft(table[0]) ? 2 : 0;
}

BoatTexts clsGrid::BoatTable(int Mode) const {
  const auto isSet = [](const tBoot &b) { return b.hasPoints(); };
  const auto isSunk = [](const tBoot &b) { return b.isSunk(); };
  BoatTexts table;
  switch (Mode) {
  case 0:
    table[0].fill("?");
    table[1].fill("?");
    break;
  case 1:
    table[0] = remaining(Size_, PBoote_, isSet);
    table[1].fill("0");
    break;
  case 2:
    table[0] = remaining(Size_, PBoote_, isSunk);
    table[1] = remaining(Size_, CBoote_, isSunk);
    break;
  default:
    break;
  }
  return table;
}

void clsGrid::MoveFleet() {
  for (const tBoot &boot : PBoote_)
    for (int j = 1; j <= boot.length(); ++j) {
      show(Picture::picWasser, *PicPlayer_, boot.X(j), boot.Y(j));
      show(Picture::picBoot, *PicComputer_, boot.X(j), boot.Y(j));
    }
}

void clsGrid::ShowComputerBoats() {
  for (const tBoot &boot : CBoote_)
    for (int j = 1; j <= boot.length(); ++j)
      if (boot.Status(j) == tBoot::intact)
        show(Picture::picBoot, *PicPlayer_, boot.X(j), boot.Y(j));
}
