// How the human's boats may stand.
//
// A boat is set point by point. Each point but the first touches an earlier one of its boat along
// an edge, no four points fill a square, and no point touches another boat, along an edge or at a
// corner. Lines, steps, T and U shapes are all boats, and the rim of the field is allowed:
//
//     1 . . 2 2        a third point of boat 2 may stand at a, not at
//     1 1 . a .        b (no edge in common) nor at c (beside boat 1)
//     . 1 c b . .
//
// Beyond the edge of the field there is water.

#include "clsGrid.h"

#include <array>

namespace {

constexpr std::array<Cell, 4> kCorners{{{1, -1}, {1, 1}, {-1, 1}, {-1, -1}}};

int boatAt(const Field &field, int X, int Y) { return field.contains(X, Y) ? field(X, Y, 1) : 0; }

} // namespace

bool clsGrid::CreatePoint(int BootID, int X, int Y) const {
  if (!CheckDistance(BootID, X, Y))
    return false;
  if (PBoote(BootID).hasPoints() && !CheckContact(BootID, X, Y))
    return false;
  return CheckBlock(X, Y);
}

// The cell is free and none of its eight neighbours holds another boat.
bool clsGrid::CheckDistance(int BootID, int X, int Y) const {
  if (PFeld_(X, Y, 1) > 0)
    return false;
  for (const auto &neighbours : {kSteps, kCorners})
    for (const auto &[dx, dy] : neighbours) {
      const int other = boatAt(PFeld_, X + dx, Y + dy);
      if (other != 0 && other != BootID)
        return false;
    }
  return true;
}

// One of the four edge neighbours belongs to the boat.
bool clsGrid::CheckContact(int BootID, int X, int Y) const {
  for (const auto &[dx, dy] : kSteps)
    if (boatAt(PFeld_, X + dx, Y + dy) == BootID)
      return true;
  return false;
}

// The cell would not complete a filled square: one for each corner, with the two edges beside it.
bool clsGrid::CheckBlock(int X, int Y) const {
  for (const auto &[dx, dy] : kCorners)
    if (boatAt(PFeld_, X + dx, Y) && boatAt(PFeld_, X + dx, Y + dy) && boatAt(PFeld_, X, Y + dy))
      return false;
  return true;
}

bool clsGrid::SetPoint(int BootID, int n, int X, int Y) {
  tBoot &boot = PBoote_[boat(BootID)];
  PFeld_.set(X, Y, 1, static_cast<std::uint8_t>(BootID));
  boot.setPoint(n, X, Y);
  showPoint(X, Y);
  verify();
  return n != boot.length();
}

void clsGrid::DrawBoat(int BootID) {
  const tBoot &boot = PBoote(BootID);
  for (int j = 1; j <= boot.length(); ++j)
    show(Picture::picBoot, *PicPlayer_, boot.X(j), boot.Y(j));
}

void clsGrid::DeleteBoat(int BootID) {
  tBoot &boot = PBoote_[boat(BootID)];
  for (int j = 1; j <= boot.length(); ++j) {
    if (boot.X(j) == 0)
      continue;
    show(Picture::picWasser, *PicPlayer_, boot.X(j), boot.Y(j));
    PFeld_.set(boot.X(j), boot.Y(j), 1, 0);
    boot.setStatus(j, tBoot::intact);
    boot.setPoint(j, 0, 0);
  }
  verify();
}
