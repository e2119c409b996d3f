// What the computer knows and weighs in a real game, at a search and while it finishes a boat, for
// a picture.

#include "ClockDraw.h"
#include "KnownSea.h"
#include "json.h"
#include "number.h"
#include "players.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

namespace {

constexpr const char *kHelp =
    "thinking SIZE SHOTS\n"
    "    plays games of the size, 1 to 3, until one has a search behind at least SHOTS shots,\n"
    "    with a choice of two blocks, and later a boat that has been hit round a corner.\n"
    "    Prints both positions as JSON: {\"search\":{\"sea\",\"free\",\"best\",\"second\"},\n"
    "    \"finish\":{\"sea\",\"list\"}}. sea and free are rows of text. sea: . unknown, o shot at\n"
    "    in vain, ~ water known from a sinking, * hit, # sunk; free: the free neighbours of an\n"
    "    unknown cell, else a dot. The others are lists of cells, [x,y]: the candidates of the\n"
    "    best and the second best block, and the cells that may belong to the boat, repeats\n"
    "    included.\n";

/// A coin that always falls the same way.
struct Coin : RandomDraw {
  explicit Coin(int side) : side_(side) {}
  double next() override { return side_ == 1 ? 0 : 0.5; }

private:
  int side_;
};

template <typename Letter>
std::string toJson(const Layer &shots, Letter letter) {
  std::string text = "[";
  for (int Y = 1; Y <= shots.rows(); ++Y) {
    text += Y > 1 ? ",\"" : "\"";
    for (int X = 1; X <= shots.columns(); ++X)
      text += letter(X, Y);
    text += '"';
  }
  return text + ']';
}

/// One game, in which only the computer shoots.
class Game {
public:
  Game(int size, RandomDraw &draw) : grid_(draw) {
    grid_.setSize(size);
    do
      grid_.ResetFields();
    while (!setRandomFleet(grid_, draw));
    shotAt_ = Layer(grid_.columns(), grid_.rows());
  }

  bool isOver() const { return winnerOf(grid_.BoatTable(2)) != 0; }

  void shoot() {
    const Layer before = shots();
    const bool isWater = grid_.ComputerShoot() == ShotCode::water;
    for (int Y = 1; isWater && Y <= before.rows(); ++Y)
      for (int X = 1; X <= before.columns(); ++X)
        if (before(X, Y) != shots()(X, Y))
          shotAt_.set(X, Y, 1);
  }

  std::optional<std::string> search() const {
    if (grid_.Treffer != 0 || grid_.OnlySinglesLeft())
      return std::nullopt;
    Coin head(1);
    Coin tail(2);
    const auto best = searchList(known(), head);
    const auto second = searchList(known(), tail);
    if (best == second)
      return std::nullopt;
    const CellNumbers numbers = freeNeighbours(shots());
    const std::string free = toJson(shots(), [&](int X, int Y) {
      const int n = numbers[indexOf(X, Y)];
      return n < 0 ? '.' : static_cast<char>('0' + n);
    });
    return "{\"sea\":" + sea() + ",\"free\":" + free + ",\"best\":" + toJson(best) +
           ",\"second\":" + toJson(second) + '}';
  }

  std::optional<std::string> finish() const {
    if (grid_.Treffer == 0)
      return std::nullopt;
    const auto list = finishingList(known());
    for (auto cell = list.begin(); cell != list.end(); ++cell)
      if (std::find(list.begin(), cell, *cell) != cell)
        return "{\"sea\":" + sea() + ",\"list\":" + toJson(list) + '}';
    return std::nullopt;
  }

private:
  const Layer &shots() const { return grid_.PFeld().layer(2); }

  KnownSea known() const {
    KnownSea sea{shots(), {}, grid_.OnlySinglesLeft()};
    for (int Y = 1; Y <= shots().rows(); ++Y)
      for (int X = 1; X <= shots().columns(); ++X)
        if (shots()(X, Y) == Shot::hit)
          sea.hits.push_back({X, Y});
    return sea;
  }

  std::string sea() const {
    return toJson(shots(), [&](int X, int Y) {
      const std::uint8_t shot = shots()(X, Y);
      return shot == Shot::miss && shotAt_(X, Y) == 0 ? '~' : ".o*#"[shot];
    });
  }

  clsGrid grid_;
  Layer shotAt_; ///< 1 where a shot fell into the water
};

/// Both positions of one game, if it has them.
std::optional<std::string> positions(int size, int least, RandomDraw &draw) {
  Game game(size, draw);
  std::optional<std::string> search;
  for (int shots = 0; !game.isOver(); ++shots, game.shoot()) {
    if (!search && shots >= least)
      search = game.search();
    if (const auto finish = search ? game.finish() : std::nullopt)
      return "{\"search\":" + *search + ",\"finish\":" + *finish + '}';
  }
  return std::nullopt;
}

} // namespace

int main(int argc, char **argv) {
  if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
    std::fputs(kHelp, stdout);
    return 0;
  }
  const int size = argc == 3 ? number(argv[1], kSizes) : 0;
  const int shots = argc == 3 ? number(argv[2], 40) : 0; // every game is longer
  if (size == 0 || shots == 0) {
    std::fputs("thinking: takes a size of 1 to 3 and a number of shots up to 40, see --help\n",
               stderr);
    return 2;
  }
  ClockDraw draw;
  for (int i = 0; i < 10000; ++i)
    if (const auto found = positions(size, shots, draw)) {
      std::puts(found->c_str());
      return 0;
    }
  std::fputs("thinking: no game had such positions\n", stderr);
  return 1;
}
