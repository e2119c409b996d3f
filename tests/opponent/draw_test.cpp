#include "RandomDraw.h"

#include <gtest/gtest.h>

TEST(RandomDraw, NeverLeavesItsRange) {
  struct Fixed : RandomDraw {
    double r = 0;
    double next() override { return r; }
  } draw;
  for (int n = 1; n <= 400; ++n)
    for (const bool most : {false, true}) {
      draw.r = most ? 1 - 0x1p-32 : 0; // what a source may give
      EXPECT_EQ(draw.draw(n), most ? n : 1);
    }
}
