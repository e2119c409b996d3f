#include "BoardTest.h"

#include <algorithm>

namespace {

struct MoveTest : BoardTest {
  /// The computer's move at a cell that it may choose.
  ShotCode shootAt(const Cell &target) {
    const auto coin = [&] {
      if (grid.Treffer == 0)
        draw.expect(1, 2);
    };
    coin(); // for this look at the list
    const auto list = probe.ShotList();
    const auto entry = std::find(list.begin(), list.end(), target);
    EXPECT_NE(entry, list.end());
    const int n = static_cast<int>(list.size());
    coin();
    for (int i = 0; i < 4 * n; ++i)
      draw.expect(1, n); // a shuffle that moves nothing
    draw.expect(static_cast<int>(entry - list.begin()) + 1, n);
    calls.clear();
    return grid.ComputerShoot();
  }
};

TEST_F(MoveTest, LongBoatFromFirstHitToSinking) {
  probe.placeHuman("////F....BBB");
  EXPECT_EQ(shootAt({6, 5}), ShotCode::hit);
  EXPECT_EQ(calls, Calls{"right Treffer 126 101 24 24"});
  EXPECT_EQ(shootAt({6, 6}), ShotCode::water);
  EXPECT_EQ(calls, Calls{"right Daneben 126 126 24 24"});
  EXPECT_EQ(shootAt({7, 5}), ShotCode::hit);
  EXPECT_EQ(shootAt({8, 5}), ShotCode::sunk);
  EXPECT_EQ(calls, (Calls{"right Versenkt 126 101 24 24", "right Versenkt 151 101 24 24",
                          "right Versenkt 176 101 24 24"}))
      << "nothing is drawn on the water around";
}

} // namespace
