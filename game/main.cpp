#include "ClockDraw.h"
#include "late.h"
#include "scale.h"
#include "startup.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr int kSoundDelay = 300; // ms

}

int main(int argc, char **argv) {
  keepScalesWhole();
  const QApplication app(argc, argv);
  dressApplication();

  ClockDraw draw;
  LateSound sound;
  QtSettingsStore settings;
  QtMessageBox messages;
  LateHelp help;
  Globals globals;
  const auto window =
      Main(globals, {draw, sound, settings, messages, help}, app.applicationDirPath());
  // Opening the sound card can take longer than the whole start, so the first frames come before.
  QTimer::singleShot(kSoundDelay, [&] { sound.open(); });
  return QApplication::exec();
}
