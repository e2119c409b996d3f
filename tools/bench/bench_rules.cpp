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

void BM_Draw(benchmark::State &state) {
  ClockDraw draw;
  for (auto _ : state)
    benchmark::DoNotOptimize(draw.draw(20));
}
BENCHMARK(BM_Draw);

void BM_ComputerFleet(benchmark::State &state) {
  CountingDraw draw;
  clsGrid grid(draw);
  grid.setSize(static_cast<int>(state.range(0)));
  for (auto _ : state)
    benchmark::DoNotOptimize(grid.CreateComputerField());
  state.counters["draws"] =
      benchmark::Counter(static_cast<double>(draw.draws), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_ComputerFleet)->ArgName("size")->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

// Whole games of the computer alone, per move: all stages in the shares in which they occur.
void BM_ComputerMove(benchmark::State &state) {
  CountingDraw draw;
  clsGrid grid(draw);
  grid.setSize(static_cast<int>(state.range(0)));
  makeGame(grid, draw);
  draw.draws = 0;
  for (auto _ : state) {
    grid.ComputerShoot();
    if (!isSunk(grid))
      continue;
    state.PauseTiming();
    const long before = draw.draws;
    makeGame(grid, draw);
    draw.draws = before;
    state.ResumeTiming();
  }
  state.counters["draws"] =
      benchmark::Counter(static_cast<double>(draw.draws), benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_ComputerMove)->ArgName("size")->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

/// Stages of a game, as the computer meets them.
enum Stage { untouched, halfKnown, finishing, onlySingles };

bool isAt(Stage stage, const clsGrid &grid) {
  int known = 0;
  for (int Y = 1; Y <= grid.rows(); ++Y)
    for (int X = 1; X <= grid.columns(); ++X)
      known += grid.PFeld()(X, Y, 2) != Shot::none;
  bool longAfloat = false;
  for (int i = 1; i <= grid.BoatCount(); ++i)
    longAfloat = longAfloat || (grid.PBoote(i).length() > 1 && !grid.PBoote(i).isSunk());
  switch (stage) {
  case untouched:
    return true;
  case halfKnown:
    return grid.Treffer == 0 && longAfloat && 2 * known >= grid.rows() * grid.columns();
  case finishing:
    return grid.Treffer != 0;
  case onlySingles:
    return grid.Treffer == 0 && !longAfloat && !isSunk(grid);
  }
  return false;
}

// One move each in many positions of a stage, which are played to before the clock runs.
void BM_MoveAtStage(benchmark::State &state) {
  constexpr std::size_t kPositions = 50;
  CountingDraw draw;
  long draws = 0;
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
    const long before = draw.draws;
    const auto began = std::chrono::steady_clock::now();
    for (const auto &grid : positions)
      grid->ComputerShoot();
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - began;
    state.SetIterationTime(took.count() / kPositions);
    draws += draw.draws - before;
  }
  state.counters["draws"] = benchmark::Counter(static_cast<double>(draws) / kPositions,
                                               benchmark::Counter::kAvgIterations);
}
BENCHMARK(BM_MoveAtStage)
    ->ArgNames({"size", "stage"})
    ->ArgsProduct({{1, 2, 3}, {untouched, halfKnown, finishing, onlySingles}})
    ->UseManualTime()
    ->Iterations(100)
    ->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
