#pragma once

#include "clsGrid.h"

#include <optional>
#include <random>
#include <vector>

// Stand-ins for chance and for the human, for bulk games, tests and the demonstration. Unlike the
// computer, those for the human are given the whole board.

/// The same numbers each time for a seed.
class SeededDraw : public RandomDraw {
public:
  explicit SeededDraw(unsigned seed) : random_(seed) {}
  double next() override {
    ++draws;
    return static_cast<double>(random_()) * 0x1p-32;
  }

  long draws = 0;

private:
  std::mt19937 random_;
};

/// What a player who sets a fleet likes, beyond what the rules ask: nothing, boats in a line, or
/// all cells on the rim of the field.
enum class Taste { any, straight, rim };

/// A random cell on which a further point of the boat may stand; nothing if there is none.
std::optional<Cell> randomPoint(const clsGrid &grid, int BootID, RandomDraw &draw,
                                Taste taste = Taste::any);

/// Sets the human's whole fleet at random by the rules of placement. A boat that cannot go on is
/// deleted and begun again. False if many attempts gave no fleet; the fields must then be emptied
/// again.
bool setRandomFleet(clsGrid &grid, RandomDraw &draw, Taste taste = Taste::any);

/// Presses cells at random, now and then one again. In about one game of four the player is lucky
/// and finds boats often enough to win.
class RandomGunner {
public:
  /// For one game on a board with both fleets. Both must outlive the gunner.
  RandomGunner(const clsGrid &grid, RandomDraw &draw);

  /// The next press. Some cell must not have been shot at.
  Cell next();

private:
  std::vector<Cell> cells(bool (*wanted)(int boat, int shot)) const;

  const clsGrid &grid_;
  RandomDraw &draw_;
  bool lucky_;
};
