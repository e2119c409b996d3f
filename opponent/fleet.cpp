// How the computer lays its fleet.
//
// A boat is a random walk. From a random cell that touches no boat each step goes one cell up,
// right, down or left, in the first direction clockwise from a drawn one in which a box of six
// cells ahead lies on the field and is empty:
//
//     . . . .
//     . a a .      one step right from 1: the boxes' cells a;
//     1 a a .      so a boat keeps clear of others and of itself, and
//     . a a .      no cell but its first can stand on the rim
//
// A dead end takes the last cell off again.

#include "clsGrid.h"

namespace {

constexpr int kTries = 100;

// A walk can come back to the same dead end over and over. At this many steps back the try counts
// as failed.
constexpr int kStepsBack = 1000;

/// The step of direction 1 up, 2 right, 3 down or 4 left.
constexpr Cell step(int Direction) { return kSteps[static_cast<std::size_t>(Direction - 1)]; }

} // namespace

bool clsGrid::CreateComputerField() {
  for (int i = 0; i < kTries; ++i) {
    ResetFields();
    if (PlaceComputerBoats()) {
      verify();
      return true;
    }
  }
  return false;
}

bool clsGrid::PlaceComputerBoats() {
  for (int BootID = 1; BootID <= BoatCount(); ++BootID) {
    bool stands = false;
    for (int i = 0; i < kTries && !stands; ++i)
      stands = CreateComputerBoat(BootID);
    if (!stands)
      return false;
  }
  return true;
}

bool clsGrid::CreateComputerBoat(int BootID) {
  tBoot &boot = CBoote_[boat(BootID)];
  const auto set = [&](int i, int X, int Y) {
    CFeld_.set(X, Y, 1, static_cast<std::uint8_t>(BootID));
    boot.setPoint(i, X, Y);
  };
  const auto takeOff = [&](int i) {
    CFeld_.set(boot.X(i), boot.Y(i), 1, 0);
    boot.setPoint(i, 0, 0);
  };

  int X = 0;
  int Y = 0;
  if (!FindFreeCell(X, Y))
    return false;
  set(1, X, Y);

  int i = 1;
  for (int stepsBack = 0; i < boot.length();) {
    const int drawn = draw_.draw(4);
    if (const int Direction = FindDirection(drawn, boot.X(i), boot.Y(i))) {
      set(i + 1, boot.X(i) + step(Direction).X, boot.Y(i) + step(Direction).Y);
      ++i;
      continue;
    }
    takeOff(i--);
    if (++stepsBack == kStepsBack)
      while (i > 0)
        takeOff(i--);
    if (i == 0)
      return false;
  }
  return true;
}

// Here a cell off the field counts as free.
bool clsGrid::FindFreeCell(int &X, int &Y) {
  const Layer &boats = CFeld_.layer(1);
  const auto touches = [&] {
    for (int y = Y - 1; y <= Y + 1; ++y)
      for (int x = X - 1; x <= X + 1; ++x)
        if (boats.contains(x, y) && boats(x, y) != 0)
          return true;
    return false;
  };
  for (int i = 0; i < kTries; ++i) {
    do {
      X = draw_.draw(columns());
      Y = draw_.draw(rows());
    } while (boats(X, Y) != 0);
    if (!touches())
      return true;
  }
  return false;
}

// Here a cell off the field closes the direction.
int clsGrid::FindDirection(int Direction, int X, int Y) const {
  const Layer &boats = CFeld_.layer(1);
  const auto isOpen = [&](const Cell &way) {
    const auto cell = [&](int ahead, int aside) {
      return Cell{X + ahead * way.X + aside * way.Y, Y + ahead * way.Y + aside * way.X};
    };
    const Cell near = cell(1, -1);
    const Cell far = cell(2, 1);
    if (!boats.contains(near.X, near.Y) || !boats.contains(far.X, far.Y))
      return false;
    for (int ahead = 1; ahead <= 2; ++ahead)
      for (int aside = -1; aside <= 1; ++aside)
        if (boats(cell(ahead, aside).X, cell(ahead, aside).Y) != 0)
          return false;
    return true;
  };
  for (int trial = 0; trial < 4; ++trial) {
    if (isOpen(step(Direction)))
      return Direction;
    Direction = Direction % 4 + 1;
  }
  return 0;
}
