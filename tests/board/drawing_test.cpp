#include "BoardTest.h"

#include <algorithm>
#include <set>

namespace {

TEST_F(BoardTest, FieldsAreDrawnSizesFirstThenLinesThenWaterRingByRing) {
  grid.ChangePicSize = [this] { calls.emplace_back("ChangePicSize"); };
  struct {
    unsigned different; ///< calls: all lines and all cells are drawn, each in its place
    std::string width, height, lowestLine, innermostCell, pointInWork;
  } const sizes[] = {
      {211, "253", "203", "0 200 253 200", "151 101 24 24", "226 176 249 199"},
      {429, "288", "231", "0 228 288 228", "172 115 18 18", "267 210 284 227"},
      {727, "323", "259", "0 256 323 256", "193 129 15 15", "305 241 319 255"},
  };
  for (int size = 1; const auto &s : sizes) {
    calls.clear();
    grid.setSize(size++);
    EXPECT_EQ(calls[0], "right width " + s.width);
    EXPECT_EQ(calls[3], "left height " + s.height);
    EXPECT_EQ(calls[4], "ChangePicSize");
    EXPECT_EQ(calls[9], "right line 0 0 0 " + s.height);
    EXPECT_EQ(std::set(calls.begin(), calls.end()).size(), s.different);
    for (const char *refresh : {"left refresh", "right refresh"})
      EXPECT_EQ(std::count(calls.begin(), calls.end(), refresh), 1 + grid.rows() / 2);
    EXPECT_EQ(std::find(calls.begin(), calls.end(), "right refresh")[-1],
              "left line " + s.lowestLine);
    EXPECT_EQ(calls.end()[-3], "right Wasser " + s.innermostCell);

    grid.ResetFields();
    grid.SetPoint(1, 1, grid.columns(), grid.rows());
    EXPECT_EQ(calls.back(), "left blue box " + s.pointInWork);
  }
}

} // namespace
