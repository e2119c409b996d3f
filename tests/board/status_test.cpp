#include "GridProbe.h"
#include "RecordingSurface.h"
#include "ScriptedDraw.h"
#include "clsGrid.h"

#include <gtest/gtest.h>

namespace {

using Column = std::array<std::string, 6>;
using Calls = std::vector<std::string>;

struct StatusTest : testing::Test {
  ScriptedDraw draw;
  clsGrid grid{draw};
  GridProbe probe{grid};
  Calls calls;
  RecordingSurface left{"left", calls};
  RecordingSurface right{"right", calls};

  void start(int size) {
    grid.setSize(size);
    grid.ResetFields();
    grid.setPicComputer(right);
    grid.setPicPlayer(left);
  }
};

TEST_F(StatusTest, CountersOfTheModes) {
  EXPECT_EQ(grid.BoatTable(0)[0], Column({"?", "?", "?", "?", "?", "?"})) << "before any game";
  start(1);
  EXPECT_EQ(grid.BoatTable(1)[0], Column({"0", "0", "1", "2", "2", "3"}));
  EXPECT_EQ(grid.BoatTable(1)[1], Column({"0", "0", "0", "0", "0", "0"}));
  probe.placeHuman({"AAAA......", "..........", "BBB.......", "..........", "F........."});
  EXPECT_EQ(grid.BoatTable(1)[0], Column({"0", "0", "0", "1", "2", "2"}));
  EXPECT_EQ(grid.BoatTable(3)[0], Column());
  EXPECT_EQ(grid.BoatTable(3)[1], Column());
  start(3);
  EXPECT_EQ(grid.BoatTable(2)[0], Column({"1", "2", "2", "2", "3", "4"}));
  EXPECT_EQ(grid.BoatTable(2)[1], Column({"1", "2", "2", "2", "3", "4"}));
}

TEST_F(StatusTest, BattleCountsSunkBoatsAndFindsTheWinner) {
  start(1);
  const std::vector<std::string> fleet = {"AAAA.BBB..", "..........", "CCC.DD.EE.", "..........",
                                          "F.G.H....."};
  probe.placeComputer(fleet);
  probe.placeHuman(fleet);
  grid.Shoot(6, 1);
  grid.Shoot(7, 1);
  EXPECT_EQ(grid.BoatTable(2)[1], Column({"0", "0", "1", "2", "2", "3"})) << "hits count nothing";
  grid.Shoot(8, 1);
  EXPECT_EQ(grid.BoatTable(2)[1], Column({"0", "0", "1", "1", "2", "3"}));
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 0);

  for (int i = 1; i <= 7; ++i)
    probe.sinkHuman(i);
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 0) << "one single is left";
  probe.sinkHuman(8);
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 2);
  for (int Y = 1; Y <= 8; ++Y)
    for (int X = 1; X <= 10; ++X)
      grid.Shoot(X, Y);
  EXPECT_EQ(winnerOf(grid.BoatTable(2)), 1) << "the computer's last boat decides first";
}

TEST_F(StatusTest, MoveFleetPaintsTheFleetAndNothingElse) {
  start(3);
  probe.placeHuman({"AAAAAA.BBBBB.CCCCC..", "....................", "DDDD.EEEE.FFF.GGG...",
                    "....................", "HH.II.JJ.K.L.M.N...."});
  calls.clear();
  grid.MoveFleet();
  ASSERT_EQ(calls.size(), 80u);
  EXPECT_EQ(calls[0], "left Wasser 1 1 15 15");
  EXPECT_EQ(calls[1], "right Boot 1 1 15 15");
  EXPECT_EQ(calls[78], "left Wasser 241 65 15 15");
  EXPECT_EQ(calls[79], "right Boot 241 65 15 15");
  EXPECT_EQ(grid.PFeld()(1, 1, 1), 1) << "only the picture moves";
}

TEST_F(StatusTest, ShowComputerBoatsShowsWhatWasNotHit) {
  start(1);
  probe.placeComputer({"AAAA.BBB..", "..........", "CCC.DD.EE.", "..........", "F.G.H....."});
  grid.Shoot(1, 1);
  grid.Shoot(5, 5);
  calls.clear();
  grid.ShowComputerBoats();
  EXPECT_EQ(calls.size(), 17u - 2);
  EXPECT_EQ(calls[0], "left Boot 26 1 24 24");
  for (const std::string &call : calls)
    EXPECT_EQ(call.rfind("left Boot", 0), 0u) << call;
}

} // namespace
