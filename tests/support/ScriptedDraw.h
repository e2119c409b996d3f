#pragma once

#include "RandomDraw.h"

#include <deque>
#include <random>

/// Gives the numbers of its script; then seeded random ones, unless the script must suffice.
class ScriptedDraw : public RandomDraw {
public:
  explicit ScriptedDraw(unsigned seed = 1) : random_(seed) {}

  /// The next draw from 1 to `n` gives `value`.
  void expect(int value, int n) { script_.push_back((value - 0.5) / n); }

  double next() override {
    ++draws;
    if (script_.empty())
      return static_cast<double>(random_()) * 0x1p-32;
    const double r = script_.front();
    script_.pop_front();
    return r;
  }

  long draws = 0;

private:
  std::deque<double> script_;
  std::mt19937 random_;
};
