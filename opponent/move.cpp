// The computer's turn: choose a cell, fire at it, enter the result.
//
// The choice sees a `KnownSea` only. The human's boats are read to give the result of a shot that
// is already chosen.

#include "KnownSea.h"
#include "clsGrid.h"

#include <algorithm>
#include <cassert>
#include <utility>

std::vector<Cell> clsGrid::ShotList() {
  KnownSea sea{PFeld_.layer(2), {}, OnlySinglesLeft()};
  if (Treffer == 0)
    return searchList(sea, draw_);

  const tBoot &boot = PBoote(Treffer);
  for (int j = 1; j <= boot.length(); ++j)
    if (boot.Status(j) == tBoot::hit)
      sea.hits.push_back(boot.cell(j));
  return finishingList(sea);
}

bool clsGrid::OnlySinglesLeft() const {
  // From the shortest on, as those are afloat longest.
  return std::all_of(PBoote_.rbegin(), PBoote_.rend(),
                     [](const tBoot &boot) { return boot.length() == 1 || boot.isSunk(); });
}

ShotCode clsGrid::ComputerShoot() {
  // 1. List, shuffle, choose. While the human has a boat, some cell is always worth a shot.
  std::vector<Cell> list = ShotList();
  assert(!list.empty());
  const int n = static_cast<int>(list.size());
  const auto drawn = [&] { return static_cast<std::size_t>(draw_.draw(n) - 1); };
  for (int i = 0; i < 2 * n; ++i) {
    const auto a = drawn();
    const auto b = drawn();
    std::swap(list[a], list[b]);
  }
  LastShot_ = list[drawn()];
  const auto [X, Y] = LastShot_;

  // 2. A miss.
  const int b = PFeld_(X, Y, 1);
  if (b == 0) {
    show(Picture::picDaneben, *PicComputer_, X, Y);
    PFeld_.set(X, Y, 2, Shot::miss);
    verify();
    return ShotCode::water;
  }

  // 3. A hit.
  tBoot &boot = PBoote_[boat(b)];
  if (hit(PFeld_, boot, *PicComputer_, X, Y)) {
    Treffer = static_cast<std::uint8_t>(b);
    verify();
    return ShotCode::hit;
  }

  // 4. A sinking. The water around comes first, as it is also written over the boat.
  MarkAroundBoat(b);
  sink(PFeld_, boot, *PicComputer_);
  Treffer = 0;
  verify();
  return ShotCode::sunk;
}
