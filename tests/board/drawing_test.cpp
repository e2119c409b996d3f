#include "BoardTest.h"

#include <algorithm>
#include <set>

namespace {

TEST_F(BoardTest, FieldsAreDrawnSizesFirstThenLinesThenWaterRingByRing) {
  grid.ChangePicSize = [this] { calls.emplace_back("ChangePicSize"); };
  struct {
    std::string width, height;
    unsigned different; ///< calls: all lines and all cells are drawn, each in its place
    int refreshes;
    std::string lowestLine, innermostCell, pointInWork;
  } const sizes[] = {
      {"253", "203", 211, 5, "0 200 253 200", "151 101 24 24", "226 176 249 199"},
      {"288", "231", 429, 7, "0 228 288 228", "172 115 18 18", "267 210 284 227"},
      {"323", "259", 727, 9, "0 256 323 256", "193 129 15 15", "305 241 319 255"},
  };
  for (int size = 1; const auto &s : sizes) {
    calls.clear();
    grid.setSize(size++);
    const Calls begin{"right width " + s.width,
                      "right height " + s.height,
                      "left width " + s.width,
                      "left height " + s.height,
                      "ChangePicSize",
                      "right clear",
                      "left clear",
                      "right draw width 1",
                      "left draw width 1",
                      "right line 0 0 0 " + s.height};
    EXPECT_TRUE(std::equal(begin.begin(), begin.end(), calls.begin()));
    EXPECT_EQ(std::set(calls.begin(), calls.end()).size(), s.different);
    for (const char *refresh : {"left refresh", "right refresh"})
      EXPECT_EQ(std::count(calls.begin(), calls.end(), refresh), s.refreshes);
    const auto water = std::find(calls.begin(), calls.end(), "left refresh") + 1;
    EXPECT_EQ(water[-3], "left line " + s.lowestLine);
    EXPECT_EQ(calls.end()[-3], "right Wasser " + s.innermostCell);

    grid.ResetFields();
    grid.SetPoint(1, 1, grid.columns(), grid.rows());
    EXPECT_EQ(calls.back(), "left blue box " + s.pointInWork);
  }
}

} // namespace
