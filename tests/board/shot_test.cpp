#include "GridProbe.h"
#include "RecordingSurface.h"
#include "ScriptedDraw.h"
#include "clsGrid.h"

#include <gtest/gtest.h>

namespace {

using Calls = std::vector<std::string>;

struct ShotTest : testing::Test {
  ScriptedDraw draw;
  clsGrid grid{draw};
  GridProbe probe{grid};
  Calls calls;
  RecordingSurface left{"left", calls};
  RecordingSurface right{"right", calls};

  void SetUp() override {
    grid.setPicComputer(right);
    grid.setPicPlayer(left);
    grid.ResetFields();
    probe.placeComputer({"..........", ".BB.......", "..B....F.."});
  }

  ShotCode shoot(int X, int Y) {
    calls.clear();
    return grid.Shoot(X, Y);
  }
};

TEST_F(ShotTest, WaterIsAMissOnce) {
  EXPECT_EQ(shoot(10, 8), ShotCode::water);
  EXPECT_EQ(calls, Calls{"left Daneben 226 176 24 24"});
  EXPECT_EQ(grid.CFeld()(10, 8, 2), Shot::miss);
  EXPECT_EQ(shoot(10, 8), ShotCode::repeated);
  EXPECT_EQ(calls, Calls{});
  EXPECT_EQ(grid.CFeld()(10, 8, 2), Shot::miss);
}

TEST_F(ShotTest, BoatSinksWithItsLastPointInAnyOrder) {
  EXPECT_EQ(shoot(3, 3), ShotCode::hit);
  EXPECT_EQ(calls, Calls{"left Treffer 51 51 24 24"});
  EXPECT_EQ(shoot(3, 3), ShotCode::repeated);
  EXPECT_EQ(shoot(2, 2), ShotCode::hit);
  EXPECT_FALSE(grid.CBoote(2).isSunk());
  EXPECT_EQ(shoot(3, 2), ShotCode::sunk);
  const Calls sinking{"left Versenkt 26 26 24 24", "left Versenkt 51 26 24 24",
                      "left Versenkt 51 51 24 24"};
  EXPECT_EQ(calls, sinking) << "point by point, and never a hit on the last";
  for (const Cell &cell : {Cell{2, 2}, Cell{3, 2}, Cell{3, 3}}) {
    EXPECT_EQ(grid.CFeld()(cell.X, cell.Y, 2), Shot::sunk);
    EXPECT_EQ(shoot(cell.X, cell.Y), ShotCode::repeated);
  }
  EXPECT_EQ(shoot(4, 4), ShotCode::water) << "the water around is not marked";
}

TEST_F(ShotTest, SingleSinksAtOnce) {
  EXPECT_EQ(shoot(8, 3), ShotCode::sunk);
  EXPECT_EQ(calls, Calls{"left Versenkt 176 51 24 24"});
  EXPECT_EQ(grid.PFeld()(8, 3, 2), Shot::none) << "the other side's field";
}

} // namespace
