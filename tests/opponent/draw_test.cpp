#include "RandomDraw.h"

#include <gtest/gtest.h>

TEST(RandomDraw, NeverLeavesItsRange) {
  struct : RandomDraw {
    double next() override { return 1 - 0x1p-32; } // the most that a source may give
  } draw;
  for (int n = 1; n <= 400; ++n)
    EXPECT_EQ(draw.draw(n), n);
}
