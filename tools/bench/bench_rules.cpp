// What the computer's rules cost, beside the random draws that they demand.

#include "ClockDraw.h"
#include "players.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace {

struct CountingDraw : ClockDraw {
  long draws = 0;
  double next() override {
    ++draws;
    return ClockDraw::next();
  }
};

void makeGame(clsGrid &grid, RandomDraw &draw) {
  do
    grid.CreateComputerField();
  while (!setRandomFleet(grid, draw));
}

bool isSunk(const clsGrid &grid) {
  for (int i = 1; i <= grid.BoatCount(); ++i)
    if (!grid.PBoote(i).isSunk())
      return false;
  return true;
}

using Clock = std::chrono::steady_clock;

/// Times what `act` does, and right behind it as many draws as it took; `act` tells how many moves
/// or fleets it made, for which the times are told each.
class AgainstItsDraws {
public:
  AgainstItsDraws(benchmark::State &state, CountingDraw &draw) : state_(state), draw_(draw) {}
  ~AgainstItsDraws() {
    const auto each = [this](double sum) {
      return benchmark::Counter(sum / static_cast<double>(done_));
    };
    state_.counters["draws"] = each(static_cast<double>(draws_));
    state_.counters["took"] = each(took_.count()); // in s
    state_.counters["alone"] = each(alone_.count());
  }

  template <typename Act>
  void time(const Act &act) {
    const long before = draw_.draws;
    const auto began = Clock::now();
    const int done = act();
    const auto ended = Clock::now();
    took_ += ended - began;
    const long draws = draw_.draws - before;
    for (long i = 0; i < draws; ++i)
      benchmark::DoNotOptimize(draw_.draw(20));
    alone_ += Clock::now() - ended;
    draws_ += draws;
    done_ += done;
    state_.SetIterationTime(std::chrono::duration<double>(ended - began).count() / done);
  }

private:
  benchmark::State &state_;
  CountingDraw &draw_;
  std::chrono::duration<double> took_{};
  std::chrono::duration<double> alone_{};
  long draws_ = 0;
  long done_ = 0;
};

void BM_ComputerFleet(benchmark::State &state) {
  constexpr int kFleets = 50;
  CountingDraw draw;
  clsGrid grid(draw);
  grid.setSize(static_cast<int>(state.range(0)));
  AgainstItsDraws clock(state, draw);
  for (auto _ : state)
    clock.time([&] {
      for (int i = 0; i < kFleets; ++i)
        benchmark::DoNotOptimize(grid.CreateComputerField());
      return kFleets;
    });
}

// Whole games of the computer alone, per move: all stages in the shares in which they occur.
void BM_ComputerMove(benchmark::State &state) {
  CountingDraw draw;
  clsGrid grid(draw);
  grid.setSize(static_cast<int>(state.range(0)));
  AgainstItsDraws clock(state, draw);
  for (auto _ : state) {
    makeGame(grid, draw);
    clock.time([&] {
      int moves = 0;
      for (; !isSunk(grid); ++moves)
        grid.ComputerShoot();
      return moves;
    });
  }
}

/// Stages of a game, as the computer meets them.
enum Stage { untouched, halfKnown, finishing, onlySingles };

bool isAt(Stage stage, const clsGrid &grid) {
  int known = 0;
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X)
      known += grid.PFeld()(X, Y, 2) != Shot::none;
  switch (stage) {
  case untouched:
    return true;
  case halfKnown:
    return grid.Treffer == 0 && !grid.OnlySinglesLeft() &&
           2 * known >= grid.rows() * grid.columns();
  case finishing:
    return grid.Treffer != 0;
  case onlySingles:
    return grid.Treffer == 0 && grid.OnlySinglesLeft() && !isSunk(grid);
  }
  return false;
}

// One move each in some positions of a stage, which are played to before the clock runs. They are
// so few that they stay in the nearest cache, as the one board of a game does: with fifty the row
// of half the largest sea took 1.34 to 1.76 times its draws, by what else was in the cache.
void BM_MoveAtStage(benchmark::State &state) {
  constexpr int kPositions = 10;
  CountingDraw draw;
  AgainstItsDraws clock(state, draw);
  for (auto _ : state) {
    std::vector<std::unique_ptr<clsGrid>> positions;
    while (positions.size() < kPositions) {
      auto grid = std::make_unique<clsGrid>(draw);
      grid->setSize(static_cast<int>(state.range(0)));
      makeGame(*grid, draw);
      while (!isAt(static_cast<Stage>(state.range(1)), *grid) && !isSunk(*grid))
        grid->ComputerShoot();
      if (!isSunk(*grid))
        positions.push_back(std::move(grid));
    }
    clock.time([&] {
      for (const auto &grid : positions)
        grid->ComputerShoot();
      return kPositions;
    });
  }
}

void measure(benchmark::internal::Benchmark *benchmark) {
  benchmark->UseManualTime()->Unit(benchmark::kMicrosecond);
}
BENCHMARK(BM_ComputerFleet)->ArgName("size")->DenseRange(1, 3)->Iterations(500)->Apply(measure);
BENCHMARK(BM_ComputerMove)->ArgName("size")->DenseRange(1, 3)->Iterations(500)->Apply(measure);
BENCHMARK(BM_MoveAtStage)
    ->ArgNames({"size", "stage"})
    ->ArgsProduct({{1, 2, 3}, {untouched, halfKnown, finishing, onlySingles}})
    ->Iterations(250)
    ->Apply(measure);

} // namespace

BENCHMARK_MAIN();
