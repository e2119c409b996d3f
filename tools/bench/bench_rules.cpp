// What the computer's rules cost, beside the random draws that they demand.

#include "ClockDraw.h"
#include "players.h"

#include <benchmark/benchmark.h>

#include <string>

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

} // namespace

BENCHMARK_MAIN();
