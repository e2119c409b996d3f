#include "ClockDraw.h"

#include <chrono>

double ClockDraw::next() {
  // A step of the SplitMix64 generator whose increment is its own constant plus the clock.
  const auto clock = std::chrono::system_clock::now().time_since_epoch().count();
  state_ += 0x9e3779b97f4a7c15u + static_cast<std::uint64_t>(clock);
  std::uint64_t z = state_;
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
  z ^= z >> 31;
  return static_cast<double>(z >> 32) * 0x1p-32;
}
