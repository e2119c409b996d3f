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
    CFeld_.set(X, Y, 2, Shot::miss);
    verify();
    return ShotCode::water;
  }

  tBoot &boot = CBoote_[boat(b)];
  const bool afloat = hit(CFeld_, boot, *PicPlayer_, X, Y);
  if (!afloat)
    sink(CFeld_, boot, *PicPlayer_);
  verify();
  return afloat ? ShotCode::hit : ShotCode::sunk;
}

// Stores a hit of either side. If the boat still floats the hit is shown; if not, `sink` follows.
bool clsGrid::hit(Field &field, tBoot &boot, Surface &surface, int X, int Y) {
  for (int j = 1; j <= boot.length(); ++j)
    if (boot.cell(j) == Cell{X, Y})
      boot.setStatus(j, tBoot::hit);
  field.set(X, Y, 2, Shot::hit);
  if (!boot.isAfloat())
    return false;
  show(Picture::picTreffer, surface, X, Y);
  return true;
}

void clsGrid::sink(Field &field, tBoot &boot, Surface &surface) {
  for (int j = 1; j <= boot.length(); ++j) {
    show(Picture::picVersenkt, surface, boot.X(j), boot.Y(j));
    boot.setStatus(j, tBoot::sunk);
    field.set(boot.X(j), boot.Y(j), 2, Shot::sunk);
  }
}
