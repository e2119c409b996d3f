#include "GridProbe.h"
#include "RecordingSurface.h"
#include "ScriptedDraw.h"
#include "clsGrid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace {

using Calls = std::vector<std::string>;

struct DrawingTest : testing::TestWithParam<int> {
  ScriptedDraw draw;
  clsGrid grid{draw};
  Calls calls;
  RecordingSurface left{"left", calls};
  RecordingSurface right{"right", calls};

  void SetUp() override {
    grid.setPicComputer(right);
    grid.setPicPlayer(left);
    grid.ChangePicSize = [this] { calls.emplace_back("ChangePicSize"); };
    grid.setSize(GetParam());
  }

  Calls drawnOn(const std::string &start) const {
    Calls result;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(result),
                 [&](const std::string &call) { return call.rfind(start, 0) == 0; });
    return result;
  }
};

TEST_P(DrawingTest, SizesComeFirstThenLinesThenWater) {
  const char *const sizes[][2] = {{"253", "203"}, {"288", "231"}, {"323", "259"}};
  const auto &[width, height] = sizes[GetParam() - 1];
  const Calls beginning{std::string("right width ") + width, std::string("right height ") + height,
                        std::string("left width ") + width,  std::string("left height ") + height,
                        "ChangePicSize", "right clear", "left clear"};
  EXPECT_EQ(Calls(calls.begin(), calls.begin() + 7), beginning);

  const int p = grid.CellSize() + 1;
  Calls lines;
  for (const char *field : {"right", "left"})
    lines.push_back(std::string(field) + " draw width 1");
  for (int i = 0; i <= grid.columns(); ++i)
    for (const char *field : {"right", "left"}) {
      const std::string x = std::to_string(p * i);
      lines.push_back(std::string(field) + " line " + x + " 0 " + x + ' ' + height);
    }
  for (int i = 0; i <= grid.rows(); ++i)
    for (const char *field : {"right", "left"}) {
      const std::string y = std::to_string(p * i);
      lines.push_back(std::string(field) + " line 0 " + y + ' ' + width + ' ' + y);
    }
  lines.insert(lines.end(), {"right refresh", "left refresh"});
  EXPECT_EQ(Calls(calls.begin() + 7, calls.begin() + 7 + static_cast<long>(lines.size())), lines);
}

TEST_P(DrawingTest, WaterReachesEveryCellRingByRing) {
  const int c = grid.CellSize();
  std::vector<int> ringOf(static_cast<std::size_t>(grid.columns() * grid.rows()), 0);
  int ring = -1; // the first refresh belongs to the lines
  int sprites = 0;
  for (const std::string &call : drawnOn("left")) {
    std::istringstream words(call);
    std::string field, what;
    int x = 0, y = 0, width = 0, height = 0;
    words >> field >> what >> x >> y >> width >> height;
    if (what == "refresh")
      ++ring;
    if (what != "Wasser")
      continue;
    ++sprites;
    ASSERT_EQ((std::pair{x % (c + 1), y % (c + 1)}), (std::pair{1, 1})) << call;
    ASSERT_EQ((std::pair{width, height}), (std::pair{c, c})) << call;
    ringOf[static_cast<std::size_t>(y / (c + 1) * grid.columns() + x / (c + 1))] = ring + 1;
  }
  EXPECT_EQ(ring, grid.rows() / 2) << "one refresh a ring";
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X) {
      const int expected = std::min({X, Y, grid.columns() + 1 - X, grid.rows() + 1 - Y});
      ASSERT_EQ(ringOf[static_cast<std::size_t>((Y - 1) * grid.columns() + X - 1)], expected)
          << X << ", " << Y;
    }
  EXPECT_EQ(drawnOn("right Wasser").size(), static_cast<std::size_t>(sprites));
}

TEST_P(DrawingTest, FirstRingInItsOrder) {
  const auto first = std::find(calls.begin(), calls.end(), "right refresh") + 2;
  const int p = grid.CellSize() + 1;
  const auto cell = [&](const char *field, int X, int Y) {
    return std::string(field) + " Wasser " + std::to_string(p * (X - 1) + 1) + ' ' +
           std::to_string(p * (Y - 1) + 1) + ' ' + std::to_string(p - 1) + ' ' +
           std::to_string(p - 1);
  };
  const Calls top{cell("left", 1, 1), cell("left", 1, grid.rows()), cell("right", 1, 1),
                  cell("right", 1, grid.rows()), cell("left", 2, 1)};
  EXPECT_EQ(Calls(first, first + 5), top);
  const auto sides = first + 4L * grid.columns();
  const Calls side{cell("left", 1, 1), cell("left", grid.columns(), 1), cell("right", 1, 1),
                   cell("right", grid.columns(), 1), cell("left", 1, 2)};
  EXPECT_EQ(Calls(sides, sides + 5), side);
  const auto end = sides + 4L * grid.rows();
  EXPECT_EQ(Calls(end, end + 2), (Calls{"left refresh", "right refresh"}));
}

TEST_P(DrawingTest, PointInWorkFillsItsCellOnly) {
  grid.ResetFields();
  calls.clear();
  grid.SetPoint(1, 1, grid.columns(), grid.rows());
  const int p = grid.CellSize() + 1;
  const auto text = [](int n) { return ' ' + std::to_string(n); };
  EXPECT_EQ(calls.back(), "left blue box" + text(p * (grid.columns() - 1) + 1) +
                              text(p * (grid.rows() - 1) + 1) + text(p * grid.columns() - 1) +
                              text(p * grid.rows() - 1));
  calls.clear();
  grid.DeleteBoat(1);
  EXPECT_EQ(calls.size(), 1u) << "points that were not set are passed over";
  EXPECT_EQ(drawnOn("left Wasser").size(), 1u);
}

INSTANTIATE_TEST_SUITE_P(Sizes, DrawingTest, testing::Values(1, 2, 3));

} // namespace
