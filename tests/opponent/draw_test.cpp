#include "ClockDraw.h"

#include <gtest/gtest.h>

#include <array>

namespace {

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

// Chi-square statistics with limits that a right source passes but once in a million runs.
TEST(ClockDraw, IsUniformAloneAndInPairs) {
  ClockDraw draw;
  constexpr int n = 1'000'000;
  std::array<int, 100> values{}, pairs{};
  int before = 1;
  for (int i = 0; i < n; ++i) {
    ++values[static_cast<std::size_t>(draw.draw(100) - 1)];
    const int now = draw.draw(10);
    ++pairs[static_cast<std::size_t>((before - 1) * 10 + now - 1)];
    before = now;
  }
  for (const auto &counts : {values, pairs}) {
    double chi2 = 0;
    for (const int count : counts)
      chi2 += (count - n / 100.0) * (count - n / 100.0) / (n / 100.0);
    EXPECT_LT(chi2, 179); // 99 degrees of freedom
    EXPECT_GT(chi2, 44);
  }
}

} // namespace
