#include "players.h"

#include "BoatInWork.h"

namespace {

constexpr int kBoatTries = 50; // attempts at one boat

bool pleases(Taste taste, const clsGrid &grid, int BootID, const Cell &cell) {
  if (taste == Taste::rim)
    return cell.X == 1 || cell.X == grid.columns() || cell.Y == 1 || cell.Y == grid.rows();
  if (taste == Taste::any)
    return true;
  const tBoot &boot = grid.PBoote(BootID);
  bool inColumn = true;
  bool inRow = true;
  for (int j = 1; j <= boot.length() && boot.X(j) != 0; ++j) {
    inColumn = inColumn && boot.X(j) == cell.X;
    inRow = inRow && boot.Y(j) == cell.Y;
  }
  return inColumn || inRow;
}

Cell anyOf(const std::vector<Cell> &cells, RandomDraw &draw) {
  return cells[static_cast<std::size_t>(draw.draw(static_cast<int>(cells.size())) - 1)];
}

} // namespace

std::optional<Cell> randomPoint(const clsGrid &grid, int BootID, RandomDraw &draw, Taste taste) {
  std::vector<Cell> cells;
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X)
      if (grid.CreatePoint(BootID, X, Y) && pleases(taste, grid, BootID, {X, Y}))
        cells.push_back({X, Y});
  if (cells.empty())
    return std::nullopt;
  return anyOf(cells, draw);
}

bool setRandomFleet(clsGrid &grid, RandomDraw &draw, Taste taste) {
  BoatInWork boat;
  int tries = 0;
  while (boat.BootID <= grid.BoatCount()) {
    if (const auto cell = randomPoint(grid, boat.BootID, draw, taste)) {
      if (boat.add(grid, cell->X, cell->Y))
        continue;
      boat.next(grid);
      tries = 0;
    } else {
      boat.discard(grid);
      if (++tries == kBoatTries)
        return false;
    }
  }
  return true;
}

RandomGunner::RandomGunner(const clsGrid &grid, RandomDraw &draw)
    : grid_(grid), draw_(draw), lucky_(draw.draw(4) == 1) {}

Cell RandomGunner::next() {
  const auto shotAt = cells([](int, int shot) { return shot != Shot::none; });
  if (!shotAt.empty() && draw_.draw(16) == 1)
    return anyOf(shotAt, draw_);
  if (lucky_ && draw_.draw(2) == 1)
    return anyOf(cells([](int boat, int shot) { return boat != 0 && shot == Shot::none; }), draw_);
  return anyOf(cells([](int, int shot) { return shot == Shot::none; }), draw_);
}

std::vector<Cell> RandomGunner::cells(bool (*wanted)(int boat, int shot)) const {
  const Field &sea = grid_.CFeld();
  std::vector<Cell> found;
  for (int Y = 1; Y <= sea.rows(); ++Y)
    for (int X = 1; X <= sea.columns(); ++X)
      if (wanted(sea(X, Y, 1), sea(X, Y, 2)))
        found.push_back({X, Y});
  return found;
}
