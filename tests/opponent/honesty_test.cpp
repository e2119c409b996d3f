// The computer's choice may not depend on where the boats lie that it has not hit.

#include "BoardTest.h"
#include "players.h"

namespace {

using Fleet = std::vector<tBoot>;

struct Honesty : BoardTest {
  ScriptedDraw chance{7};

  static void set(clsGrid &board, const Fleet &fleet) {
    board.ResetFields();
    for (int BootID = 1; const tBoot &boat : fleet) {
      for (int j = 1; j <= boat.length(); ++j)
        board.SetPoint(BootID, j, boat.X(j), boat.Y(j));
      ++BootID;
    }
  }
  /// The cells to choose among after some shots at a fleet, with the same draws each time.
  std::vector<Cell> battle(const Fleet &fleet, int shots) {
    set(grid, fleet);
    draw = ScriptedDraw(1);
    for (int i = 0; i < shots; ++i)
      grid.ComputerShoot();
    return probe.ShotList();
  }
  /// Moves the points of a boat that are not hit to random cells where no answer of the battle
  /// would have been another. False if one comes to a cell that was shot at.
  bool move(Fleet &fleet, int BootID) {
    tBoot &boat = fleet[static_cast<std::size_t>(BootID - 1)];
    const auto isHit = [&](int j) { return grid.PBoote(BootID).Status(j) == tBoot::hit; };
    clsGrid sketch(chance);
    sketch.setSize(grid.Size());
    set(sketch, fleet);
    sketch.DeleteBoat(BootID);
    int n = 0;
    for (int j = 1; j <= boat.length(); ++j)
      if (isHit(j))
        sketch.SetPoint(BootID, ++n, boat.X(j), boat.Y(j));
    for (int j = 1; j <= boat.length(); ++j)
      if (!isHit(j)) {
        const auto cell = randomPoint(sketch, BootID, chance);
        if (!cell || grid.PFeld()(cell->X, cell->Y, 2) != Shot::none)
          return false;
        sketch.SetPoint(BootID, ++n, cell->X, cell->Y);
        boat.setPoint(j, cell->X, cell->Y);
      }
    return true;
  }
};

TEST_F(Honesty, CellsNotHitMayLieAnywhere) {
  int moves = 0;
  for (const auto &[size, positions] : {std::pair{1, 60}, {2, 10}, {3, 4}})
    for (int position = 0; position < positions; ++position) {
      start(size);
      while (!setRandomFleet(grid, chance))
        grid.ResetFields();
      const Fleet home = probe.PBoote();
      const int shots = chance.draw(grid.columns() * grid.rows() / 2);
      const auto list = battle(home, shots);
      std::vector<Fleet> others;
      for (int i = 1; i <= grid.BoatCount(); ++i)
        for (int attempt = 0; grid.PBoote(i).isAfloat() && attempt < 5; ++attempt)
          if (Fleet other = home; move(other, i))
            others.push_back(other);
      for (const Fleet &other : others)
        ASSERT_EQ(battle(other, shots), list) << grid.toText();
      moves += static_cast<int>(others.size());
    }
  EXPECT_GT(moves, 1000);
}

} // namespace
