// The computer's candidates, and the cell it fires at, may not depend on where the boats lie that
// it has not hit.

#include "BoardTest.h"
#include "players.h"

#include <algorithm>
#include <set>

namespace {

using Cells = std::vector<Cell>;
using Shape = std::set<std::pair<int, int>>; ///< cells from column and row 0 on

/// All shapes of boats of a length, by growing those of the one before.
std::set<Shape> shapesOf(int length) {
  if (length == 1)
    return {{{0, 0}}};
  std::set<Shape> shapes;
  for (const Shape &smaller : shapesOf(length - 1))
    for (const auto &[x, y] : smaller)
      for (const auto &[dx, dy] : kSteps) {
        const int right = x + dx < 0, down = y + dy < 0; // back to column and row 0
        Shape shape{{x + dx + right, y + dy + down}};
        for (const auto &[cx, cy] : smaller)
          shape.insert({cx + right, cy + down});
        const bool square = std::any_of(shape.begin(), shape.end(), [&](const auto &c) {
          return shape.contains({c.first + 1, c.second}) &&
                 shape.contains({c.first, c.second + 1}) &&
                 shape.contains({c.first + 1, c.second + 1});
        });
        if (static_cast<int>(shape.size()) == length && !square)
          shapes.insert(shape);
      }
  return shapes;
}

struct Honesty : BoardTest {
  /// Whether a boat that is afloat may lie there too: no answer of the battle so far would be
  /// another.
  bool possible(int BootID, const Cells &cells) const {
    const Field &sea = grid.PFeld();
    const tBoot &boat = grid.PBoote(BootID);
    int hits = 0;
    for (const Cell &cell : cells) {
      if (!sea.contains(cell.X, cell.Y))
        return false;
      const bool hit = sea(cell.X, cell.Y, 2) == Shot::hit && sea(cell.X, cell.Y, 1) == BootID;
      if (!hit && sea(cell.X, cell.Y, 2) != Shot::none)
        return false;
      hits += hit;
      for (int Y = cell.Y - 1; Y <= cell.Y + 1; ++Y)
        for (int X = cell.X - 1; X <= cell.X + 1; ++X)
          if (sea.contains(X, Y) && sea(X, Y, 1) != 0 && sea(X, Y, 1) != BootID)
            return false;
    }
    for (int j = 1; j <= boat.length(); ++j)
      hits -= boat.Status(j) == tBoot::hit;
    return hits == 0;
  }
  /// Moves the points that are not hit.
  void move(int BootID, const Cells &to) {
    tBoot &boat = probe.humanBoat(BootID);
    for (int j = 1; j <= boat.length(); ++j)
      if (boat.Status(j) == tBoot::intact)
        probe.PFeld().set(boat.X(j), boat.Y(j), 1, 0);
    int j = 0;
    for (const auto &[X, Y] : to) {
      if (grid.PFeld()(X, Y, 2) == Shot::hit)
        continue;
      do
        ++j;
      while (boat.Status(j) == tBoot::hit);
      boat.setPoint(j, X, Y);
      probe.PFeld().set(X, Y, 1, static_cast<std::uint8_t>(BootID));
    }
  }
  /// The candidates, repeats included, with either side of the coin.
  std::pair<Cells, Cells> candidates() {
    const auto list = [&](int coin) {
      draw = ScriptedDraw(1);
      draw.expect(coin, 2); // a finishing list draws nothing
      return probe.ShotList();
    };
    const Cells first = list(1);
    return {first, list(2)};
  }
  /// The place of the picture that a whole move with given draws shows; none if it sinks a boat
  /// of several cells, which shows them all. The position is put back.
  std::string shot() {
    const Field sea = grid.PFeld();
    std::vector<tBoot> boats;
    for (int i = 1; i <= grid.BoatCount(); ++i)
      boats.push_back(grid.PBoote(i));
    const auto Treffer = grid.Treffer;
    calls.clear();
    draw = ScriptedDraw(2);
    grid.ComputerShoot();
    for (int i = 1; i <= grid.BoatCount(); ++i)
      probe.humanBoat(i) = boats[static_cast<std::size_t>(i - 1)];
    probe.PFeld() = sea;
    grid.Treffer = Treffer;
    if (calls.size() > 1)
      return "";
    return calls.front().substr(calls.front().find(' ', 6)); // after "right" and the picture
  }
};

TEST_F(Honesty, CellsNotHitMayLieAnywhere) {
  ScriptedDraw chance(7);
  int moves = 0;
  for (const auto &[size, positions] : {std::pair{1, 60}, {2, 10}, {3, 3}})
    for (int position = 0; position < positions; ++position) {
      start(size);
      while (!setRandomFleet(grid, chance))
        grid.ResetFields();
      draw = ScriptedDraw(static_cast<unsigned>(position));
      const auto over = [&] { return winnerOf(grid.BoatTable(2)) == 2; };
      for (int n = chance.draw(grid.columns() * grid.rows() / 2); n > 0 && !over(); --n)
        grid.ComputerShoot();
      if (over())
        continue;
      const auto list = candidates();
      const auto cell = shot();
      for (int i = 1; i <= grid.BoatCount(); ++i) {
        const tBoot &boat = grid.PBoote(i);
        if (!boat.isAfloat())
          continue;
        Cells home;
        for (int j = 1; j <= boat.length(); ++j)
          home.push_back(boat.cell(j));
        for (const Shape &shape : shapesOf(boat.length()))
          for (int Y = 1; Y <= grid.rows(); ++Y)
            for (int X = 1; X <= grid.columns(); ++X) {
              Cells there;
              for (const auto &[dx, dy] : shape)
                there.push_back({X + dx, Y + dy});
              if (!possible(i, there))
                continue;
              move(i, there);
              ASSERT_EQ(candidates(), list) << "boat " << i << '\n' << grid.toText();
              if (++moves % 20 == 0) {
                const auto now = shot();
                ASSERT_TRUE(now == cell || now.empty() || cell.empty()) << grid.toText();
              }
              move(i, home);
            }
      }
    }
  RecordProperty("moves", moves);
  EXPECT_GT(moves, 10000);
}

} // namespace
