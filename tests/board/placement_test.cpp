#include "BoatInWork.h"
#include "GridProbe.h"
#include "ScriptedDraw.h"
#include "clsGrid.h"

#include <gtest/gtest.h>

namespace {

using Rows = std::vector<std::string>;

struct PlacementTest : testing::Test {
  ScriptedDraw draw;
  clsGrid grid{draw};
  GridProbe probe{grid};

  void SetUp() override { grid.ResetFields(); } // size 1, 10 by 8

  /// The field with `+` where a further point of the boat may stand.
  Rows allowed(int BootID) const {
    Rows rows(8, std::string(10, '.'));
    for (int Y = 1; Y <= 8; ++Y)
      for (int X = 1; X <= 10; ++X)
        if (grid.CreatePoint(BootID, X, Y))
          rows[static_cast<std::size_t>(Y - 1)][static_cast<std::size_t>(X - 1)] = '+';
    return rows;
  }
};

struct Case {
  const char *what;
  int BootID;
  Rows position;
  Rows allowed;
};

TEST_F(PlacementTest, PointsThatMayStand) {
  const Case cases[] = {
      {"a first point anywhere", 1, {}, Rows(8, "++++++++++")},
      {"a second point at an edge only, the rim included", 1, {"A"},
       {".+........", "+.........", "..........", "..........", "..........", "..........",
        "..........", ".........."}},
      {"no filled square, but round it", 1, {"AA........", ".A........"},
       {"..+.......", "..+.......", ".+........", "..........", "..........", "..........",
        "..........", ".........."}},
      {"a boat may go on at any of its points, T and U alike", 1,
       {"..........", "..AAA.....", ".........."},
       {"..+++.....", ".+...+....", "..+++.....", "..........", "..........", "..........",
        "..........", ".........."}},
      {"the last rows and columns are as good as any", 1,
       {"..........", "..........", "..........", "..........", "..........", "..........",
        ".........A", ".........A"},
       {"..........", "..........", "..........", "..........", "..........", ".........+",
        "........+.", "........+."}},
      {"a new boat keeps clear of another, at the corners too", 2,
       {"..........", "..........", "...A......", "...AA.....", ".....A...."},
       {"++++++++++", "++...+++++", "++....++++", "++.....+++", "++.....+++", "++++...+++",
        "++++++++++", "++++++++++"}},
      {"between two boats there may be one way only", 3,
       {"C.........", "..........", "AAA.......", "..........", "....B.....", "....B....."},
       {".+........", "..........", "..........", "..........", "..........", "..........",
        "..........", ".........."}},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.what);
    grid.ResetFields();
    probe.placeHuman(c.position);
    EXPECT_EQ(allowed(c.BootID), c.allowed);
  }
}

TEST_F(PlacementTest, BoatIsCompleteWithItsLastPoint) {
  EXPECT_TRUE(grid.SetPoint(1, 1, 1, 1));
  EXPECT_TRUE(grid.SetPoint(1, 2, 2, 1));
  EXPECT_TRUE(grid.SetPoint(1, 3, 3, 1));
  EXPECT_FALSE(grid.SetPoint(1, 4, 3, 2));
  EXPECT_FALSE(grid.SetPoint(6, 1, 10, 8)) << "a boat of one point";
  EXPECT_EQ(grid.PBoote(1).cell(4), (Cell{3, 2}));
  EXPECT_EQ(grid.PFeld()(3, 2, 1), 1);
}

TEST_F(PlacementTest, DeletedBoatLeavesNoTraceAndTheOthersAlone) {
  probe.placeHuman({"A.B.......", "A.B.......", "A.B.......", "A........."});
  grid.SetPoint(3, 1, 6, 6);
  grid.SetPoint(3, 2, 7, 6);
  grid.DeleteBoat(3);
  EXPECT_FALSE(grid.PBoote(3).hasPoints());
  EXPECT_EQ(grid.PFeld()(6, 6, 1), 0);
  EXPECT_EQ(grid.PFeld()(7, 6, 1), 0);
  EXPECT_EQ(grid.PFeld()(1, 4, 1), 1);
  EXPECT_EQ(grid.PFeld()(3, 3, 1), 2);
  EXPECT_TRUE(grid.CreatePoint(3, 9, 1)) << "it begins anew anywhere";
}

TEST_F(PlacementTest, BoatsComeInTheirOrderAndPressesAfterTheLastAreRefused) {
  BoatInWork boat;
  const Cell presses[] = {{1, 1}, {2, 1}, {3, 1}, {4, 1}, {1, 3}, {2, 3}, {3, 3}, {5, 3}, {6, 3},
                          {7, 3}, {1, 5}, {2, 5}, {4, 5}, {5, 5}, {7, 5}, {9, 5}};
  for (const Cell &press : presses) {
    ASSERT_TRUE(boat.accepts(grid, press.X, press.Y)) << grid.toText();
    if (!boat.add(grid, press.X, press.Y)) {
      EXPECT_TRUE(boat.next(grid));
    }
  }
  ASSERT_TRUE(boat.accepts(grid, 9, 8));
  EXPECT_FALSE(boat.add(grid, 9, 8));
  EXPECT_FALSE(boat.next(grid));
  EXPECT_FALSE(boat.accepts(grid, 1, 8));
}

TEST(BoardModel, FleetsOfTheSizes) {
  ScriptedDraw draw;
  clsGrid grid(draw);
  EXPECT_EQ(grid.Size(), 1) << "before anything is set";
  EXPECT_EQ(grid.CellSize(), 24);
  const std::vector<int> lengths[] = {{4, 3, 3, 2, 2, 1, 1, 1},
                                      {5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1},
                                      {6, 5, 5, 4, 4, 3, 3, 2, 2, 2, 1, 1, 1, 1}};
  const int cells[] = {17, 29, 40};
  for (int size = 1; size <= 3; ++size) {
    grid.setSize(size);
    grid.ResetFields();
    std::vector<int> computer;
    std::vector<int> human;
    for (int i = 1; i <= grid.BoatCount(); ++i) {
      computer.push_back(grid.CBoote(i).length());
      human.push_back(grid.PBoote(i).length());
    }
    EXPECT_EQ(computer, lengths[size - 1]);
    EXPECT_EQ(human, lengths[size - 1]);
    EXPECT_EQ(clsGrid::FleetCells(size), cells[size - 1]);
  }
}

TEST(BoardModel, NameIsUnbekanntWhileEmptyAndShownAsGiven) {
  struct Shown : Label {
    std::string text = "untouched";
    void setCaption(const std::string &caption) override { text = caption; }
  } label;
  ScriptedDraw draw;
  clsGrid grid(draw);
  grid.setNameLabel(label);
  EXPECT_EQ(grid.PlayerName(), "Unbekannt");
  EXPECT_EQ(label.text, "untouched") << "reading shows nothing";
  grid.setPlayerName("Jörg");
  EXPECT_EQ(label.text, "Jörg");
  grid.setPlayerName(" ");
  EXPECT_EQ(grid.PlayerName(), " ") << "blanks are a name";
  grid.setPlayerName("");
  EXPECT_EQ(grid.PlayerName(), "Unbekannt");
}

TEST_F(PlacementTest, BrokenBoardsAreFound) {
  const Rows sound = {"A.B.......", "A.B.......", "A.B.......", "A.....C..."};
  struct {
    const char *what;
    void (*damage)(GridProbe &);
  } const damages[] = {
      {"boats that touch at a corner", [](GridProbe &p) { p.placeHuman({"", "", "", "...D"}); }},
      {"a cell of no boat", [](GridProbe &p) { p.PFeld()(9, 8, 1) = 4; }},
      {"a point that is not on the field", [](GridProbe &p) { p.PFeld()(1, 1, 1) = 0; }},
      {"a state that the record lacks", [](GridProbe &p) { p.PFeld()(1, 1, 2) = Shot::hit; }},
      {"a miss on a boat", [](GridProbe &p) { p.PFeld()(1, 1, 2) = Shot::miss; }},
      {"a hit on water", [](GridProbe &p) { p.PFeld()(9, 8, 2) = Shot::hit; }},
      {"a boat that sank in part", [](GridProbe &p) {
         p.humanBoat(1).setStatus(1, tBoot::sunk);
         p.PFeld()(1, 1, 2) = Shot::sunk;
       }},
      {"a boat hit all over that floats", [](GridProbe &p) {
         for (int j = 1; j <= 4; ++j)
           p.hitHuman(1, j);
       }},
      {"a point that follows a missing one", [](GridProbe &p) {
         p.humanBoat(3).setPoint(3, 8, 4);
         p.PFeld()(8, 4, 1) = 3;
       }},
      {"finishing a boat without a hit", [](GridProbe &p) {
         p.hitHuman(1, 1);
         p.hitHuman(2, 1);
         p.sinkHuman(2);
       }},
  };
  probe.placeHuman(sound);
  ASSERT_EQ(grid.brokenInvariant(), std::nullopt);
  for (const auto &[what, damage] : damages) {
    grid.ResetFields();
    probe.placeHuman(sound);
    damage(probe);
    EXPECT_TRUE(grid.brokenInvariant()) << what;
  }
}

} // namespace
