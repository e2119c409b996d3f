// What a press costs until it is painted, and the water animation, beside a bare repaint of the
// field. Without a screen; QT_QPA_PLATFORM=xcb measures in a real window.

#include "ClockDraw.h"
#include "Robot.h"
#include "players.h"
#include "startup.h"

#include <QApplication>
#include <benchmark/benchmark.h>

namespace {

struct Game {
  ClockDraw draw;
  QuietSound sound;
  MemoryStore store;
  ClosedHelp help;
  QtMessageBox messages;
  Globals globals;
  std::unique_ptr<frmHaupt> window =
      Main(globals, {draw, sound, store, messages, help}, QString("/nowhere"));
  Robot robot{*window};
};

void BM_BareRepaint(benchmark::State &state) {
  Game game;
  game.robot.newGame(static_cast<int>(state.range(0)), "Bench");
  auto &field = Robot::control(*game.window, "picpFeld");
  for (auto _ : state)
    field.repaint();
}
BENCHMARK(BM_BareRepaint)->ArgName("size")->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

// A press that sets a point, until events have painted it; the dustbin in between is not counted.
void BM_PressToPainted(benchmark::State &state) {
  Game game;
  game.robot.newGame(static_cast<int>(state.range(0)), "Bench");
  for (auto _ : state) {
    game.robot.press(Cell{2, 2});
    QCoreApplication::processEvents();
    state.PauseTiming();
    Robot::click(Robot::control(*game.window, "imgMüll"));
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
}
BENCHMARK(BM_PressToPainted)->ArgName("size")->DenseRange(1, 3)->Unit(benchmark::kMicrosecond);

// Both fields from nothing, with all rings of the water.
void BM_WaterAnimation(benchmark::State &state) {
  Game game;
  ClockDraw draw;
  clsGrid grid(draw);
  grid.setPicComputer(Robot::control<PictureBox>(*game.window, "piccFeld"));
  grid.setPicPlayer(Robot::control<PictureBox>(*game.window, "picpFeld"));
  for (auto _ : state)
    grid.setSize(static_cast<int>(state.range(0)));
}
BENCHMARK(BM_WaterAnimation)->ArgName("size")->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  benchmark::Initialize(&argc, argv);
  const QApplication app(argc, argv);
  dressApplication();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
