#include "BoardTest.h"

namespace {

struct DrawingTest : BoardTest, testing::WithParamInterface<int> {
  int p = 0; ///< from one cell to the next

  void SetUp() override {
    grid.ChangePicSize = [this] { calls.emplace_back("ChangePicSize"); };
    grid.setSize(GetParam());
    p = grid.CellSize() + 1;
  }
};

TEST_P(DrawingTest, SizesComeFirstThenLinesThenWaterRingByRing) {
  const int sizes[][2] = {{253, 203}, {288, 231}, {323, 259}};
  const auto [width, height] = sizes[GetParam() - 1];
  const int columns = grid.columns(), rows = grid.rows();
  Calls expected;
  const auto add = [&](const char *field, const char *what, const std::vector<int> &numbers = {}) {
    expected.push_back(RecordingSurface::call(std::string(field) + ' ' + what, numbers));
  };
  for (const char *field : {"right", "left"})
    add(field, "width", {width}), add(field, "height", {height});
  expected.emplace_back("ChangePicSize");
  for (const char *what : {"clear", "draw width 1"})
    add("right", what), add("left", what);
  for (int i = 0; i <= columns; ++i)
    for (const char *field : {"right", "left"})
      add(field, "line", {p * i, 0, p * i, height});
  for (int i = 0; i <= rows; ++i)
    for (const char *field : {"right", "left"})
      add(field, "line", {0, p * i, width, p * i});
  add("right", "refresh"), add("left", "refresh");
  for (int ring = 0; ring < rows / 2; ++ring) {
    const auto pair = [&](int X1, int Y1, int X2, int Y2) {
      for (const char *field : {"left", "right"}) {
        add(field, "Wasser", {p * X1 + 1, p * Y1 + 1, p - 1, p - 1});
        add(field, "Wasser", {p * X2 + 1, p * Y2 + 1, p - 1, p - 1});
      }
    };
    for (int X = ring; X < columns - ring; ++X)
      pair(X, ring, X, rows - 1 - ring);
    for (int Y = ring; Y < rows - ring; ++Y)
      pair(ring, Y, columns - 1 - ring, Y);
    add("left", "refresh"), add("right", "refresh");
  }
  EXPECT_EQ(calls, expected);
}

TEST_P(DrawingTest, PointInWorkFillsItsCellOnly) {
  grid.ResetFields();
  calls.clear();
  const int X = grid.columns(), Y = grid.rows();
  grid.SetPoint(1, 1, X, Y);
  const std::vector<int> box{p * (X - 1) + 1, p * (Y - 1) + 1, p * X - 1, p * Y - 1};
  EXPECT_EQ(calls.back(), RecordingSurface::call("left blue box", box));
  calls.clear();
  grid.DeleteBoat(1);
  EXPECT_EQ(calls, Calls{RecordingSurface::call("left Wasser", {box[0], box[1], p - 1, p - 1})});
}

INSTANTIATE_TEST_SUITE_P(Sizes, DrawingTest, testing::Values(1, 2, 3));

} // namespace
