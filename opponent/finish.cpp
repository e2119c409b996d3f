// How the computer finishes a boat that it has hit.
//
// Boats bend, so a line of hits proves nothing about where the boat goes on. Every move takes all
// hit cells of the boat afresh and lists all their unknown neighbours, repeats included:
//
//     . a .        three hits round a corner: the cell x
//     b * x        stands twice, the others once
//     c * * d
//     . e f .

#include "KnownSea.h"
#include "clsGrid.h"

std::vector<Cell> finishingList(const KnownSea &sea) {
  std::vector<Cell> cells;
  cells.reserve(4 * sea.hits.size());
  for (const auto &[X, Y] : sea.hits)
    for (const auto &[dx, dy] : kSteps)
      if (sea.shots.contains(X + dx, Y + dy) && sea.shots(X + dx, Y + dy) == Shot::none)
        cells.push_back({X + dx, Y + dy});
  return cells;
}

// Enters what a sinking tells of the water around the boat. It also writes over the boat's own
// cells, which the sinking sets right after the call. Nothing is drawn.
void clsGrid::MarkAroundBoat(int BootID) {
  const tBoot &boot = PBoote(BootID);
  for (int j = 1; j <= boot.length(); ++j)
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx)
        if ((dx != 0 || dy != 0) && PFeld_.contains(boot.X(j) + dx, boot.Y(j) + dy))
          PFeld_.set(boot.X(j) + dx, boot.Y(j) + dy, 2, Shot::miss);
}
