#pragma once

#include <cmath>

/// The one source of chance of the whole game.
class RandomDraw {
public:
  virtual ~RandomDraw() = default;

  /// A real number r, uniform in [0, 1). It must have at most 32 significant bits, so that
  /// n * r + 1 is exact and can never round up to n + 1.
  virtual double next() = 0;

  /// A draw from 1 to `n`: floor(n * r + 1). `n` is at least 1.
  int draw(int n) { return static_cast<int>(std::floor(n * next() + 1)); }
};
