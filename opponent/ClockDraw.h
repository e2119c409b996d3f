#pragma once

#include "RandomDraw.h"

#include <cstdint>

/// The draw of the real game. Before every single draw it takes a new seed from the system clock;
/// the seed is mixed into the state and doesn't restart it, so two draws within one tick of the
/// clock still differ. There is no fixed seed and no replay.
class ClockDraw : public RandomDraw {
public:
  double next() override;

private:
  std::uint64_t state_ = 0;
};
