// The human's shot at the computer's fleet.
//
// Water shows a miss; a boat's cell shows a hit until the last one is hit, which turns all cells
// of the boat into a sunk boat. A cell that was shot at before stays as it is. Nothing marks the
// water around a sunk boat: a bomb there is an ordinary miss.

#include "clsGrid.h"

ShotCode clsGrid::Shoot(int X, int Y) {
  if (CFeld_(X, Y, 2) > Shot::none)
    return ShotCode::repeated;

  const int b = CFeld_(X, Y, 1);
  if (b == 0) {
    show(Picture::picDaneben, *PicPlayer_, X, Y);
    CFeld_(X, Y, 2) = Shot::miss;
    verify();
    return ShotCode::water;
  }

  tBoot &boot = CBoote_[boat(b)];
  for (int j = 1; j <= boot.length(); ++j)
    if (boot.cell(j) == Cell{X, Y})
      boot.setStatus(j, tBoot::hit);
  CFeld_(X, Y, 2) = Shot::hit;

  if (boot.isAfloat()) {
    show(Picture::picTreffer, *PicPlayer_, X, Y);
    verify();
    return ShotCode::hit;
  }
  for (int j = 1; j <= boot.length(); ++j) {
    show(Picture::picVersenkt, *PicPlayer_, boot.X(j), boot.Y(j));
    boot.setStatus(j, tBoot::sunk);
    CFeld_(boot.X(j), boot.Y(j), 2) = Shot::sunk;
  }
  verify();
  return ShotCode::sunk;
}
