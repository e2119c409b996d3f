// What the computer's rules cost, beside the random draws that they demand.

#include "ClockDraw.h"
#include "players.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

struct CountingDraw : ClockDraw {
  long draws = 0;
  double next() override {
    ++draws;
    return ClockDraw::next();
  }
};

using Clock = std::chrono::steady_clock;

/// A board of a size; `time` takes the time of an act on it and, right after, of as many draws as
/// the act took. The means of all acts are told at the end.
struct Board {
  benchmark::State &state;
  CountingDraw draw;
  clsGrid grid{draw};
  std::chrono::duration<double> took{}, alone{};
  long draws = 0;
  long acts = 0;

  explicit Board(benchmark::State &of) : state(of) { grid.setSize(static_cast<int>(of.range(0))); }
  ~Board() {
    const auto mean = [this](double sum) { return sum / static_cast<double>(acts); };
    state.counters["draws"] = mean(static_cast<double>(draws));
    state.counters["took"] = mean(took.count()); // in s
    state.counters["alone"] = mean(alone.count());
  }

  template <typename Act>
  void time(const Act &act) {
    const long before = draw.draws;
    const auto began = Clock::now();
    act();
    const auto ended = Clock::now();
    const long drawn = draw.draws - before;
    for (long i = 0; i < drawn; ++i)
      benchmark::DoNotOptimize(draw.draw(20));
    alone += Clock::now() - ended;
    took += ended - began;
    draws += drawn;
    ++acts;
  }
};

void BM_ComputerFleet(benchmark::State &state) {
  Board board(state);
  for (auto _ : state)
    board.time([&] { benchmark::DoNotOptimize(board.grid.CreateComputerField()); });
}

/// Moves of a game of the computer alone: all, or those of a stage.
enum Stage { whole, untouched, halfKnown, finishing, onlySingles };

bool isAt(Stage stage, const clsGrid &grid) {
  int known = 0;
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X)
      known += grid.PFeld()(X, Y, 2) != Shot::none;
  const bool searches = grid.Treffer == 0 && !grid.OnlySinglesLeft();
  switch (stage) {
  case whole:
    return true;
  case untouched:
    return known == 0;
  case halfKnown:
    return searches && 2 * known >= grid.rows() * grid.columns();
  case finishing:
    return grid.Treffer != 0;
  case onlySingles:
    return grid.Treffer == 0 && !searches;
  }
  return false;
}

void BM_ComputerMove(benchmark::State &state) {
  Board board(state);
  clsGrid &grid = board.grid;
  for (auto _ : state) {
    do
      grid.CreateComputerField();
    while (!setRandomFleet(grid, board.draw));
    while (winnerOf(grid.BoatTable(2)) == 0)
      if (isAt(static_cast<Stage>(state.range(1)), grid))
        board.time([&] { grid.ComputerShoot(); });
      else
        grid.ComputerShoot();
  }
}

BENCHMARK(BM_ComputerFleet)->ArgName("size")->DenseRange(1, 3);
BENCHMARK(BM_ComputerMove)
    ->ArgNames({"size", "stage"})
    ->ArgsProduct({{1, 2, 3}, {whole, untouched, halfKnown, finishing, onlySingles}});

} // namespace

BENCHMARK_MAIN();
